#include "physics/VehicleHandle.h"

#include "base/Assert.h"
#include "physics/PhysicNode.h"

#include <PxPhysicsAPI.h>

using namespace physx;

VehicleHandle::VehicleHandle(PxVehicleDrive4W& drivenVehicle) : vehicle(drivenVehicle), chassisNode(new PhysicNode)
{
    chassisNode->actor = getActor();
    getActor()->getShapes(shapes.data(), static_cast<PxU32>(shapes.size()));
}

PhysicNode* VehicleHandle::createWheelNode(unsigned i)
{
    QKD_ASSERT(i < shapes.size() && shapes[i], "a car has four wheels and a chassis to follow");
    auto* node = new PhysicNode;
    node->actor = getActor();
    node->shape = shapes[i];
    return node;
}

PxRigidDynamic* VehicleHandle::getActor() const
{
    return vehicle.getRigidDynamicActor();
}

float VehicleHandle::computeForwardSpeed() const
{
    return vehicle.computeForwardSpeed();
}

void VehicleHandle::forceGear(PxU32 gear)
{
    vehicle.mDriveDynData.forceGearChange(gear);
}

void VehicleHandle::placeAt(const glm::vec3& position)
{
    PxRigidDynamic* body = getActor();
    body->setLinearVelocity(PxVec3(0));
    body->setAngularVelocity(PxVec3(0));
    body->setGlobalPose(PxTransform(PxVec3(position.x, position.y, position.z)));
}
