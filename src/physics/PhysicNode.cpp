#include "physics/PhysicNode.h"

#include "base/Assert.h"
#include "physics/PhysxManager.h"

#include <PxPhysicsAPI.h>
#include <glm/gtc/quaternion.hpp>

using namespace physx;

namespace {

glm::mat4 matrixOf(const PxTransform& pose)
{
    const glm::mat4 translation = glm::translate(glm::mat4(1.0f), glm::vec3(pose.p.x, pose.p.y, pose.p.z));
    return translation * glm::mat4_cast(glm::quat(pose.q.w, pose.q.x, pose.q.y, pose.q.z));
}

} // namespace

void PhysicNode::setPosition(float x, float y, float z)
{
    QKD_ASSERT(actor, "a physics node needs its actor before it is placed");
    actor->setGlobalPose(PxTransform(PxVec3(x, y, z)));
}

void PhysicNode::setLinearVelocity(const glm::vec3& velocity)
{
    PxRigidDynamic* body = actor ? actor->is<PxRigidDynamic>() : nullptr;
    QKD_ASSERT(body, "only a node of a dynamic actor can be set in motion");
    body->setLinearVelocity(PxVec3(velocity.x, velocity.y, velocity.z));
}

void PhysicNode::updateTransform()
{
    QKD_ASSERT(actor, "a physics node needs its actor before it is updated");
    glm::mat4 pose = matrixOf(actor->getGlobalPose());
    if (shape) pose = pose * matrixOf(shape->getLocalPose());
    setTransform(pose);
    Node::updateTransform();
}

void PhysicNode::destroy()
{
    PhysxManager::instance()->removeActor(actor);
    Node::destroy();
}
