#include "input/KeyboardController.h"

#include "base/Translation.h"
#include "platform/KeyWords.h"
#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

#include <algorithm>

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
    return keySet == 0 ? translated("Pfeil") : "WASD";
}

bool KeyboardController::isStartPressed()
{
    return isKeyDown(GLFW_KEY_ENTER);
}

bool KeyboardController::isBackPressed()
{
    return isKeyDown(GLFW_KEY_ESCAPE);
}
