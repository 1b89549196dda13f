#include "physics/VehicleParameters.h"

#include <PxPhysicsAPI.h>

#include <algorithm>
#include <numbers>

using namespace physx;

namespace {

constexpr PxU32 kWheels = 4;
constexpr PxU32 kFirstRearWheel = PxVehicleDrive4WWheelOrder::eREAR_LEFT;

constexpr float kChassisHeight = 1.8494055f; // the box that stands for the chassis' mass, world units
constexpr float kChassisLength = 4.8532596f;
const PxVec3 kChassisCMOffset(0, -kChassisHeight * 0.5f + 0.65f, 0.25f); // centre of mass, from the chassis origin
// Kilograms x units squared. Of a box 2.4758029 wide with 1500 kg, turning more easily (0.8) about its vertical axis.
const PxVec3 kChassisMOI(3371.8037f, 2968.3728f, 1193.7377f);

constexpr float kWheelMass = 80;             // kilograms
constexpr float kWheelRadiusFactor = 0.975f; // rolling radius over the mesh's
constexpr float kRearHandBrakeTorque = 4000;
constexpr float kMaxSteer = std::numbers::pi_v<float> * 0.3333f; // radians, front wheels
constexpr PxU32 kFrontTireType = 1;
constexpr PxU32 kRearTireType = 0;

constexpr float kSpringStrength = 35000; // newtons per unit
constexpr float kSpringDamperRate = 4500;
constexpr float kMaxCompression = 0.3f;  // units above rest
constexpr float kMaxDroop = 0.1f;        // units below rest
constexpr float kForceAppPointY = -0.3f; // suspension and tire forces act this far below the centre of mass

constexpr float kEnginePeakTorque = 500;
constexpr float kEngineMaxOmega = 600;  // radians per second
constexpr float kGearSwitchTime = 0.5f; // seconds of game time
constexpr float kClutchStrength = 10;
constexpr float kAckermannAccuracy = 1;

PxVehicleWheelData wheelData(const WheelSize& size, bool rear)
{
    PxVehicleWheelData wheel;
    wheel.mRadius = size.radius;
    wheel.mWidth = size.width;
    wheel.mMass = kWheelMass;
    wheel.mMOI = 0.5f * kWheelMass * size.radius * size.radius;
    wheel.mMaxHandBrakeTorque = rear ? kRearHandBrakeTorque : 0.0f;
    wheel.mMaxSteer = rear ? 0.0f : kMaxSteer;
    return wheel;
}

PxVehicleTireData tireData(bool rear)
{
    PxVehicleTireData tire;
    tire.mType = rear ? kRearTireType : kFrontTireType;
    return tire;
}

PxVehicleSuspensionData suspensionData(const AxleLoads& loads, bool rear)
{
    PxVehicleSuspensionData suspension;
    suspension.mSpringStrength = kSpringStrength;
    suspension.mSpringDamperRate = kSpringDamperRate;
    suspension.mMaxCompression = kMaxCompression;
    suspension.mMaxDroop = kMaxDroop;
    suspension.mSprungMass = (rear ? loads.rear : loads.front) * 0.5f;
    return suspension;
}

void setUpDriveData(const PxVec3* offsets, PxVehicleDriveSimData4W& drive)
{
    PxVehicleDifferential4WData differential;
    differential.mType = PxVehicleDifferential4WData::eDIFF_TYPE_LS_4WD;
    drive.setDiffData(differential);

    PxVehicleEngineData engine;
    engine.mPeakTorque = kEnginePeakTorque;
    engine.mMaxOmega = kEngineMaxOmega;
    drive.setEngineData(engine);

    PxVehicleGearsData gears;
    gears.mSwitchTime = kGearSwitchTime;
    drive.setGearsData(gears);

    PxVehicleClutchData clutch;
    clutch.mStrength = kClutchStrength;
    drive.setClutchData(clutch);

    PxVehicleAckermannGeometryData ackermann;
    ackermann.mAccuracy = kAckermannAccuracy;
    ackermann.mFrontWidth =
        offsets[PxVehicleDrive4WWheelOrder::eFRONT_RIGHT].x - offsets[PxVehicleDrive4WWheelOrder::eFRONT_LEFT].x;
    ackermann.mRearWidth =
        offsets[PxVehicleDrive4WWheelOrder::eREAR_RIGHT].x - offsets[PxVehicleDrive4WWheelOrder::eREAR_LEFT].x;
    ackermann.mAxleSeparation =
        offsets[PxVehicleDrive4WWheelOrder::eFRONT_LEFT].z - offsets[PxVehicleDrive4WWheelOrder::eREAR_LEFT].z;
    drive.setAckermannGeometryData(ackermann);
}

} // namespace

WheelSize measureWheel(const PxConvexMesh& mesh)
{
    PxVec3 low(PX_MAX_F32), high(-PX_MAX_F32);
    for (PxU32 i = 0; i < mesh.getNbVertices(); ++i) {
        low = low.minimum(mesh.getVertices()[i]);
        high = high.maximum(mesh.getVertices()[i]);
    }
    return {high.x - low.x, std::max(high.y, high.z) * kWheelRadiusFactor};
}

AxleLoads splitMass(float chassisMass)
{
    const float rear = 0.5f * chassisMass * (kChassisLength - 3 * kChassisCMOffset.z) / kChassisLength;
    return {chassisMass - rear, rear};
}

void setUpVehicleSimulationData(float chassisMass, const WheelSize* wheelSizes4, const PxVec3* wheelCentreOffsets4,
    PxVehicleWheelsSimData& wheels, PxVehicleDriveSimData4W& drive, PxVehicleChassisData& chassis)
{
    chassis.mMass = chassisMass;
    chassis.mMOI = kChassisMOI;
    chassis.mCMOffset = kChassisCMOffset;

    const AxleLoads loads = splitMass(chassisMass);
    for (PxU32 i = 0; i < kWheels; ++i) {
        const bool rear = i >= kFirstRearWheel;
        const PxVec3 centre = wheelCentreOffsets4[i] - kChassisCMOffset;
        const PxVec3 forcePoint(centre.x, kForceAppPointY, centre.z);
        wheels.setWheelData(i, wheelData(wheelSizes4[i], rear));
        wheels.setTireData(i, tireData(rear));
        wheels.setSuspensionData(i, suspensionData(loads, rear));
        wheels.setSuspTravelDirection(i, PxVec3(0, -1, 0));
        wheels.setWheelCentreOffset(i, centre);
        wheels.setSuspForceAppPointOffset(i, forcePoint);
        wheels.setTireForceAppPointOffset(i, forcePoint);
    }
    setUpDriveData(wheelCentreOffsets4, drive);
}
