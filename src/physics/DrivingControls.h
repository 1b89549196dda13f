#pragma once

class VehicleHandle;

/// What a driver's device says in one pass.
struct DriverInput {
    float accel = 0; ///< 0 to 1
    float brake = 0; ///< -1 (pressed) to 0
    float steer = 0; ///< -1 (left) to +1 (right)
    bool handBrake = false;
};

/// Turns what a driver's device says into a car's raw inputs and gears, and remembers whether the driver goes
/// backwards. One per driver, owned by the player; apply() once a pass, before the physics world updates its vehicles.
class DrivingControls {
public:
    /// Write the car's raw inputs and switch into and out of reverse. Going backwards the brake control is the throttle
    /// and the throttle control brakes. Return the throttle written, 0 to 1.
    float apply(const DriverInput& input, VehicleHandle& car);

private:
    float writeRawInputs(const DriverInput& input, VehicleHandle& car) const;
    void handleGears(const DriverInput& input, VehicleHandle& car);

    bool reversing = false;
};
