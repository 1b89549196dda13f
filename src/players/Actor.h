#pragma once

#include "scene/Camera.h"
#include "scene/Viewport.h"

#include <glm/glm.hpp>

#include <string>

class IMatch;
class InputDevice;
class Node;

/// A participant of the match with a camera and a viewport of its own. Created by the match, never destroyed. Its node,
/// "Actor" and the number, is a child of the scene's root; the match lays the viewport out later.
class Actor {
public:
    /// match and device are borrowed; both outlive the actor.
    Actor(IMatch& match, InputDevice& device);
    Actor(const Actor&) = delete;
    Actor& operator=(const Actor&) = delete;

    virtual std::string getName() const = 0;
    virtual void update() = 0;                 ///< once per drawn frame of the match
    virtual bool isPlayer() const = 0;         ///< true for those who drive, and are a Player
    virtual glm::vec3 getPosition() const = 0; ///< world space, as of the last scene update

    int getNumber() const { return number; } ///< the participants that were there before this one
    InputDevice& getDevice() const { return device; }
    Camera* getCamera() { return &camera; }
    Viewport* getViewport() { return &viewport; }
    const Viewport* getViewport() const { return &viewport; }

protected:
    ~Actor() = default;

    IMatch& match;
    InputDevice& device;
    Node* const node;

private:
    const int number;
    Camera camera;
    Viewport viewport;
};
