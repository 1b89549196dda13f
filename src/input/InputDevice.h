#pragma once

#include <glm/vec3.hpp>

#include <cstdint>
#include <string>

/// What a participant drives with: half a keyboard, a game-pad, or the computer's own controller. Turns the hardware's
/// state into seven buttons and up to four axes. Owned by whoever created it and alive for the whole run; update() once
/// a frame, then read.
class InputDevice {
public:
    /// The buttons, the same on every device.
    enum Button {
        kAccelerate = 0,
        kBrake = 1, ///< also reverses
        kSteerLeft = 2,
        kSteerRight = 3,
        kShoot = 4,
        kHandBrake = 5,
        kStart = 6,
    };
    static constexpr int kButtonCount = 7;

    enum Axis {
        kThrottleAxis = 0,      ///< 0 to 1
        kBrakeAxis = 1,         ///< -1 to 0
        kSteeringAxis = 2,      ///< -1 (left) to 1 (right)
        kStickVerticalAxis = 3, ///< -1 to 1
    };

    virtual ~InputDevice() = default;

    virtual bool isPressed(int button) = 0; ///< false for a number that is no Button
    virtual float getAxis(int axis) = 0;    ///< 0 for a number that is no Axis, or an axis that the device lacks

    /// Rumble for that many milliseconds; motor speeds from 0 to 65535. A new request replaces the running one.
    virtual void vibrate(int milliseconds, std::uint16_t leftMotor, std::uint16_t rightMotor) = 0;

    /// Note that from now on somebody takes part with this device.
    virtual void setJoined() {}

    /// Show that colour (red, green, blue, 0 to 1), that of its car, where the device has a light.
    virtual void setLight(const glm::vec3&) {}

    virtual void update() = 0; ///< read the hardware for this frame
    virtual bool isConnected() = 0;
    virtual std::string getName() const = 0; ///< as players see it
    virtual bool isStartPressed() = 0;
    virtual bool isBackPressed() = 0;
};
