#pragma once

#include <foundation/PxVec3.h>

namespace physx {
class PxConvexMesh;
class PxVehicleChassisData;
class PxVehicleDriveSimData4W;
class PxVehicleWheelsSimData;
}

/// A wheel as its collision mesh has it.
struct WheelSize {
    float width = 0;  ///< extent along x
    float radius = 0; ///< a little less than the mesh's, whose corners stick out
};

/// Return the size of a wheel whose axis is x.
WheelSize measureWheel(const physx::PxConvexMesh& mesh);

/// How a chassis' mass rests on its axles, kilograms.
struct AxleLoads {
    float front = 0;
    float rear = 0;
};

/// Return the loads of a chassis of that mass in kilograms.
AxleLoads splitMass(float chassisMass);

/// Fill in everything that the vehicle library wants to know of a car: wheels, tires, suspensions, drive train and
/// chassis. chassisMass in kilograms; wheelCentreOffsets4 relative to the chassis origin; wheelSizes4 and offsets in
/// the library's wheel order.
void setUpVehicleSimulationData(float chassisMass, const WheelSize* wheelSizes4,
    const physx::PxVec3* wheelCentreOffsets4, physx::PxVehicleWheelsSimData& wheels,
    physx::PxVehicleDriveSimData4W& drive, physx::PxVehicleChassisData& chassis);
