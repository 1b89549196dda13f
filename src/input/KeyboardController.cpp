#include "input/KeyboardController.h"

#include "platform/KeyWords.h"
#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

#include <algorithm>

namespace {

constexpr const char* kNames[2] = {"Pfeil", "WASD"};

} // namespace

KeyboardController::KeyboardController(int layout, const ControlOptions& controls) : keySet(layout - 1)
{
    const ControlOptions::Words& words = controls.halves.at(static_cast<std::size_t>(keySet));
    std::transform(words.begin(), words.end(), keys.begin(), keyOf);
}

bool KeyboardController::isPressed(int button)
{
    return button >= 0 && button < kButtonCount && isKeyDown(keys[static_cast<std::size_t>(button)]);
}

float KeyboardController::getAxis(int axis)
{
    switch (axis) {
    case kThrottleAxis: return amount(kAccelerate);
    case kBrakeAxis: return -amount(kBrake);
    case kSteeringAxis: return amount(kSteerRight) - amount(kSteerLeft);
    default: return 0.0f;
    }
}

void KeyboardController::update()
{
    keyboard().poll();
}

std::string KeyboardController::getName() const
{
    return kNames[keySet];
}

bool KeyboardController::isStartPressed()
{
    return isKeyDown(GLFW_KEY_ENTER);
}

bool KeyboardController::isBackPressed()
{
    return isKeyDown(GLFW_KEY_ESCAPE);
}
