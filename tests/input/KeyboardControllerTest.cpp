#include "input/KeyboardController.h"
#include "testing/ScriptedKeyboard.h"

#include <gtest/gtest.h>

namespace {

TEST(KeyboardController, EachKeyIsOneButtonOfOneHalfAndPushesItsAxisTheRightWay)
{
    constexpr int kKeys[2][7] = {
        {GLFW_KEY_UP, GLFW_KEY_DOWN, GLFW_KEY_LEFT, GLFW_KEY_RIGHT, GLFW_KEY_K, GLFW_KEY_L, GLFW_KEY_ENTER},
        {GLFW_KEY_W, GLFW_KEY_S, GLFW_KEY_A, GLFW_KEY_D, GLFW_KEY_1, GLFW_KEY_2, GLFW_KEY_TAB},
    };
    ScriptedKeyboard keys;
    KeyboardController halves[] = {KeyboardController(1), KeyboardController(2)};
    for (int i = 0; i < 14; ++i) {
        const int held = i % 7, key = kKeys[i / 7][held];
        KeyboardController &half = halves[i / 7], &other = halves[1 - i / 7];
        SCOPED_TRACE(half.getName() + ", button " + std::to_string(held));
        keys.reset();
        keys.hold({key});
        for (int button = -1; button <= 7; ++button) {
            EXPECT_EQ(half.isPressed(button), button == held) << button;
            EXPECT_FALSE(other.isPressed(button)) << button;
        }
        const int amounts[] = {held == 0, -(held == 1), (held == 3) - (held == 2), 0};
        for (int axis = 0; axis < 4; ++axis) EXPECT_EQ(half.getAxis(axis), amounts[axis]) << axis;
        EXPECT_EQ(half.isStartPressed(), key == GLFW_KEY_ENTER);
        EXPECT_EQ(other.isStartPressed(), key == GLFW_KEY_ENTER);
    }
    keys.reset();
    keys.hold({GLFW_KEY_LEFT, GLFW_KEY_RIGHT, GLFW_KEY_ESCAPE});
    EXPECT_EQ(halves[0].getAxis(InputDevice::kSteeringAxis), 0);
    EXPECT_TRUE(halves[0].isBackPressed() && halves[1].isBackPressed());
    halves[1].update();
    EXPECT_EQ(keys.polls, 1) << "an update takes in key events";
}

TEST(KeyboardController, HasTheKeysThatItWasGiven)
{
    ScriptedKeyboard keys;
    ControlOptions controls;
    controls.halves[1] = {"kp8", "z", "leftshift", "semicolon", "f10", "9", "graveaccent"};
    KeyboardController arrows(1, controls), wasd(2, controls);
    constexpr int kKeys[] = {GLFW_KEY_KP_8, GLFW_KEY_Z, GLFW_KEY_LEFT_SHIFT, GLFW_KEY_SEMICOLON, GLFW_KEY_F10,
        GLFW_KEY_9, GLFW_KEY_GRAVE_ACCENT};
    for (int button = 0; button < InputDevice::kButtonCount; ++button) {
        keys.reset();
        keys.hold({kKeys[button]});
        EXPECT_TRUE(wasd.isPressed(button)) << button;
        keys.reset();
        keys.hold({GLFW_KEY_W, GLFW_KEY_S, GLFW_KEY_A, GLFW_KEY_D, GLFW_KEY_1, GLFW_KEY_2, GLFW_KEY_TAB});
        EXPECT_FALSE(wasd.isPressed(button)) << button;
    }
    keys.hold({GLFW_KEY_LEFT_SHIFT, GLFW_KEY_UP});
    EXPECT_EQ(wasd.getAxis(InputDevice::kSteeringAxis), -1);
    EXPECT_EQ(arrows.getAxis(InputDevice::kThrottleAxis), 1);
}

} // namespace
