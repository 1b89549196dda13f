#pragma once

namespace physx {
class PxRigidActor;
}
class Ball;
class Player;

/// Whose a body of the physics world is: a player's car, a ball, or nobody's (the ground). Owned by the player or the
/// ball; the body points at it by the SDK's userData.
struct BodyOwner {
    Player* player = nullptr;
    Ball* ball = nullptr;

    /// Mark the body as this owner's. The owner outlives the body, or stays where it is as long as that is in a scene.
    void claim(physx::PxRigidActor& body);

    /// Return the owner of a body; nobody when it was never claimed.
    static BodyOwner of(const physx::PxRigidActor& body);
};
