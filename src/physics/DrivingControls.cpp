#include "physics/DrivingControls.h"

#include "physics/VehicleHandle.h"

#include <PxPhysicsAPI.h>

using physx::PxVehicleGearsData;

namespace {

constexpr float kHandBrakeAmount = 0.5f; // of the full torque
constexpr float kStandstill = 0.001f;    // units per second; below it, and rolling backwards, the direction may change
constexpr float kControlPressed = 0.1f;  // a control moved that far asks for its direction

} // namespace

float DrivingControls::apply(const DriverInput& input, VehicleHandle& car)
{
    const float throttle = writeRawInputs(input, car);
    handleGears(input, car);
    return throttle;
}

float DrivingControls::writeRawInputs(const DriverInput& input, VehicleHandle& car) const
{
    const float throttle = reversing ? -input.brake : input.accel;
    physx::PxVehicleDrive4WRawInputData& raw = car.getRawInputs();
    raw.setAnalogAccel(throttle);
    raw.setAnalogBrake(reversing ? input.accel : -input.brake);
    raw.setAnalogSteer(-input.steer); // the vehicle library's right is +x, the driver's is -x
    raw.setAnalogHandbrake(input.handBrake ? kHandBrakeAmount : 0.0f);
    return throttle;
}

void DrivingControls::handleGears(const DriverInput& input, VehicleHandle& car)
{
    physx::PxVehicleDriveDynData& drive = car.getVehicle().mDriveDynData;
    physx::PxU32 target = drive.getTargetGear();
    if (!reversing && car.computeForwardSpeed() < kStandstill && input.brake < -kControlPressed) {
        reversing = true;
        target = PxVehicleGearsData::eREVERSE;
    }
    if (reversing && car.computeForwardSpeed() < kStandstill && input.accel > kControlPressed) {
        reversing = false;
        target = PxVehicleGearsData::eFIRST;
    }
    if (drive.getCurrentGear() != target) car.forceGear(target);
}
