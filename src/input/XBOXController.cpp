#include "input/XBOXController.h"

#include "base/FrameTimer.h"

namespace {

constexpr int kButtonCount = 7;

// By InputDevice::Button.
constexpr GamePadState::Button kButtons[kButtonCount] = {
    GamePadState::kUp,
    GamePadState::kDown,
    GamePadState::kLeft,
    GamePadState::kRight,
    GamePadState::kA,
    GamePadState::kB,
    GamePadState::kStart,
};

constexpr float kTriggerRange = 255.0f;
constexpr float kStickRange = 32768.0f;
constexpr int kDeadZone = 7849; // smaller deflections count as rest

float triggerAmount(std::uint8_t value)
{
    return static_cast<float>(value) / kTriggerRange;
}

float stickAmount(std::int16_t value)
{
    const bool resting = value > -kDeadZone && value < kDeadZone;
    return resting ? 0.0f : static_cast<float>(value) / kStickRange;
}

} // namespace

bool XBOXController::isPressed(int button)
{
    return button >= 0 && button < kButtonCount && (state.buttons & kButtons[button]) != 0;
}

float XBOXController::getAxis(int axis)
{
    switch (axis) {
    case kThrottleAxis: return triggerAmount(state.rightTrigger);
    case kBrakeAxis: return -triggerAmount(state.leftTrigger);
    case kSteeringAxis: return stickAmount(state.leftStickX);
    case kStickVerticalAxis: return stickAmount(state.leftStickY);
    default: return 0.0f;
    }
}

void XBOXController::vibrate(int milliseconds, std::uint16_t leftMotor, std::uint16_t rightMotor)
{
    vibrationEnd = FrameTimer::getInstance()->getTimeMs() + milliseconds;
    vibrating = true;
    hardware.rumble(slot, leftMotor, rightMotor);
}

void XBOXController::setJoined()
{
    hardware.setJoined(slot);
}

void XBOXController::update()
{
    state = hardware.read(slot);
    if (vibrating && FrameTimer::getInstance()->getTimeMs() > vibrationEnd) {
        vibrate(0, 0, 0);
        vibrating = false;
    }
}

bool XBOXController::isConnected()
{
    state = hardware.read(slot);
    return state.connected;
}

std::string XBOXController::getName() const
{
    return "XBOX " + std::to_string(slot + 1);
}

bool XBOXController::isStartPressed()
{
    return (state.buttons & GamePadState::kStart) != 0;
}

bool XBOXController::isBackPressed()
{
    return (state.buttons & GamePadState::kBack) != 0;
}
