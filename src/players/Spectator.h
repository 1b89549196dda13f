#pragma once

#include "players/Actor.h"

/// Somebody who looks on without a car or a score: a camera that an input device flies freely over the field, turned
/// and moved by one node and tilted by another below it. Created, and updated once a frame, by whoever lets somebody
/// watch.
class Spectator final : public Actor {
public:
    Spectator(IMatch& match, InputDevice& device);

    std::string getName() const override; ///< "Spectator 2, XBOX 1": number, device

    /// Fly at one unit a second of game time by buttons 0 to 3, turn and tilt by the steering axis. Without its device,
    /// stay there and complain at the head of the next line of the log.
    void update() override;
    bool isPlayer() const override { return false; }
    glm::vec3 getPosition() const override; ///< of the camera

private:
    void turn(float steering);
    void move();
    void tilt(float steering);

    Node* yawNode;   // carries position and heading
    Node* pitchNode; // carries the tilt and the camera
};
