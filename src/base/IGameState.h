#pragma once

#include <string>
#include <utility>

class Camera;
class TextRenderer;

/// One screen of the game (registration, match, debug view). Owned by the game, never destroyed; made current by name
/// through the GameStateManager. The renderer, far below the states, knows them by this interface only.
class IGameState {
public:
    explicit IGameState(std::string stateName) : name(std::move(stateName)) {}

    const std::string& getName() const { return name; }

    virtual void enter() = 0;                        ///< the state becomes current
    virtual void layOut() {}                         ///< current, and the window has another size
    virtual void leave() = 0;                        ///< another state replaces it
    virtual void update() = 0;                       ///< once per drawn frame, before the game's own update
    virtual void renderCamera(Camera* camera) = 0;   ///< once per viewport, after its models are drawn
    virtual void drawText(TextRenderer* /*text*/) {} ///< while F1 is held: the state's help text

protected:
    ~IGameState() = default;

private:
    std::string name;
};
