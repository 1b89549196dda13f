#include "input/XBOXController.h"

#include "base/FrameTimer.h"

#include <SDL.h>

namespace {

constexpr float kPressed = 0.5f; // of the way, from which on triggers and sticks count as pressed

// By InputDevice::Button: nobody drives with these, but somebody who looks on may.
constexpr SDL_GameControllerButton kDirections[] = {
    SDL_CONTROLLER_BUTTON_DPAD_UP,
    SDL_CONTROLLER_BUTTON_DPAD_DOWN,
    SDL_CONTROLLER_BUTTON_DPAD_LEFT,
    SDL_CONTROLLER_BUTTON_DPAD_RIGHT,
};

// The library counts downwards. The complement maps its whole range onto the whole range (negation would run over at
// -32768); rest comes out as -1, far within any dead zone.
std::int16_t upwards(std::int16_t value)
{
    return static_cast<std::int16_t>(-1 - value);
}

std::uint16_t weakened(std::uint16_t speed, int percent)
{
    return static_cast<std::uint16_t>(speed * percent / 100);
}

} // namespace

XBOXController::XBOXController(int number, GamePads& pads, const ControlOptions& controls)
    : slot(number - 1), hardware(pads), deadZone(deadZoneOf(controls.deadZone)), rumble(controls.rumble)
{
    for (const std::string& word : controls.pads.at(static_cast<std::size_t>(slot))) inputs.emplace_back(word);
}

bool XBOXController::isPressed(int button)
{
    if (button < 0 || button >= kButtonCount) return false;
    if (button <= kSteerRight) return state.isHeld(kDirections[button]);
    return amount(button) >= kPressed;
}

float XBOXController::amount(int button) const
{
    return inputs[static_cast<std::size_t>(button)].amount(state, deadZone);
}

float XBOXController::getAxis(int axis)
{
    switch (axis) {
    case kThrottleAxis: return amount(kAccelerate);
    case kBrakeAxis: return -amount(kBrake);
    case kSteeringAxis: return amount(kSteerRight) - amount(kSteerLeft);
    case kStickVerticalAxis: return stickAmount(upwards(state.axis(SDL_CONTROLLER_AXIS_LEFTY)), deadZone);
    default: return 0.0f;
    }
}

void XBOXController::vibrate(int milliseconds, std::uint16_t leftMotor, std::uint16_t rightMotor)
{
    vibrationEnd = FrameTimer::getInstance()->getTimeMs() + milliseconds;
    vibrating = true;
    hardware.rumble(slot, weakened(leftMotor, rumble), weakened(rightMotor, rumble));
}

void XBOXController::setJoined()
{
    hardware.setJoined(slot);
}

void XBOXController::setLight(const glm::vec3& colour)
{
    hardware.setLight(slot, colour);
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
    return state.isHeld(SDL_CONTROLLER_BUTTON_START);
}

bool XBOXController::isBackPressed()
{
    return state.isHeld(SDL_CONTROLLER_BUTTON_BACK);
}
