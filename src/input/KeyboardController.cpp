#include "input/KeyboardController.h"

#include "base/Translation.h"
#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

namespace {

constexpr int kButtonCount = 7;

// By key set, then by button.
constexpr int kKeys[2][kButtonCount] = {
    {GLFW_KEY_UP, GLFW_KEY_DOWN, GLFW_KEY_LEFT, GLFW_KEY_RIGHT, GLFW_KEY_K, GLFW_KEY_L, GLFW_KEY_ENTER},
    {GLFW_KEY_W, GLFW_KEY_S, GLFW_KEY_A, GLFW_KEY_D, GLFW_KEY_1, GLFW_KEY_2, GLFW_KEY_TAB},
};

} // namespace

bool KeyboardController::isPressed(int button)
{
    return button >= 0 && button < kButtonCount && isKeyDown(kKeys[keySet][button]);
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
