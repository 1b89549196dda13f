#pragma once

#include "scene/Node.h"

namespace physx {
class PxRigidActor;
class PxShape;
}

/// A scene node that follows a rigid actor, or one of its shapes. It belongs under a node whose world transform is the
/// identity.
///
/// The creator sets `actor` (and `shape`) right after construction and puts the node into the tree. Nothing flows from
/// the node to the actor except through setPosition, setLinearVelocity and destroy.
class PhysicNode : public Node {
public:
    using Node::Node;

    physx::PxRigidActor* actor = nullptr; ///< held by the scene, never null once the node is in use
    physx::PxShape* shape = nullptr;      ///< one of the actor's shapes to follow, e.g. a wheel; null: the actor itself

    /// Teleport the actor, upright, and wake it. Its velocities stay.
    void setPosition(float x, float y, float z);

    /// Set the actor, which must be dynamic, in motion: world units per second of simulated time.
    void setLinearVelocity(const glm::vec3& velocity);

    void updateTransform() override; ///< take the pose from the actor first
    void destroy() override;         ///< take the actor out of the physics scene too; not to be updated afterwards
};
