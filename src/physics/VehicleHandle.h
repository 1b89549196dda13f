#pragma once

#include <glm/glm.hpp>
#include <vehicle/PxVehicleUtilControl.h>

#include <array>

namespace physx {
class PxRigidDynamic;
class PxShape;
class PxVehicleDrive4W;
}
class PhysicNode;

/// One car as the game sees it: its controls, its body and the nodes that follow its parts. Owned by the
/// VehicleManager. Front is +z, up is +y, so the driver's right is -x. Shapes 0 to 3 are the wheels, shape 4 is the
/// chassis.
class VehicleHandle {
public:
    explicit VehicleHandle(physx::PxVehicleDrive4W& drivenVehicle);

    /// Return the controls that the next vehicle update reads; they stay until written again.
    physx::PxVehicleDrive4WRawInputData& getRawInputs() { return rawInputs; }

    /// Create a node that follows shape i (0 to 3: a wheel, 4: the chassis); the caller puts it into the tree.
    PhysicNode* createWheelNode(unsigned i);

    /// Return the node that follows the actor; it is in no tree unless someone puts it there.
    PhysicNode* getChassisNode() const { return chassisNode; }

    physx::PxVehicleDrive4W& getVehicle() const { return vehicle; }
    physx::PxRigidDynamic* getActor() const; ///< the car's body, e.g. to recognise it in a contact report

    float computeForwardSpeed() const; ///< units per second of simulated time, negative when rolling backwards

    /// Change gear at once (physx::PxVehicleGearsData: eREVERSE 0, eNEUTRAL 1, eFIRST 2).
    void forceGear(physx::PxU32 gear);

    /// Put the car there, upright, facing +z and with its body at rest.
    void placeAt(const glm::vec3& position);

private:
    physx::PxVehicleDrive4WRawInputData rawInputs;
    physx::PxVehicleDrive4W& vehicle;
    PhysicNode* chassisNode;
    std::array<physx::PxShape*, 16> shapes{};
};
