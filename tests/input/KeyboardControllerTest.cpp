#include "input/KeyboardController.h"
#include "testing/ScriptedKeyboard.h"

#include <gtest/gtest.h>

namespace {

struct KeyRow {
    int layout;
    int key;
    int button;
    int axis; // that the key moves; -1 for none
    float value;
};

TEST(KeyboardController, OneKeyPressesOneButtonAndMovesAtMostOneAxis)
{
    const KeyRow rows[] = {{1, GLFW_KEY_UP, 0, 0, 1.0f}, {1, GLFW_KEY_DOWN, 1, 1, -1.0f},
        {1, GLFW_KEY_LEFT, 2, 2, -1.0f}, {1, GLFW_KEY_RIGHT, 3, 2, 1.0f}, {1, GLFW_KEY_K, 4, -1, 0},
        {1, GLFW_KEY_L, 5, -1, 0}, {1, GLFW_KEY_ENTER, 6, -1, 0}, {2, GLFW_KEY_W, 0, 0, 1.0f},
        {2, GLFW_KEY_S, 1, 1, -1.0f}, {2, GLFW_KEY_A, 2, 2, -1.0f}, {2, GLFW_KEY_D, 3, 2, 1.0f},
        {2, GLFW_KEY_1, 4, -1, 0}, {2, GLFW_KEY_2, 5, -1, 0}, {2, GLFW_KEY_TAB, 6, -1, 0}};
    ScriptedKeyboard keys;
    for (const KeyRow& row : rows) {
        SCOPED_TRACE(row.key);
        KeyboardController device(row.layout), otherHalf(3 - row.layout);
        keys.reset();
        keys.hold({row.key});
        for (int button = -1; button <= 7; ++button) {
            EXPECT_EQ(device.isPressed(button), button == row.button) << "button " << button;
            EXPECT_FALSE(otherHalf.isPressed(button)) << "the other half's button " << button;
        }
        for (int axis = 0; axis <= 3; ++axis)
            EXPECT_EQ(device.getAxis(axis), axis == row.axis ? row.value : 0.0f) << "axis " << axis;
    }
}

TEST(KeyboardController, BothHalvesShareTheStartAndBackKeysAndOppositeSteeringKeysCancelOut)
{
    ScriptedKeyboard keys;
    KeyboardController arrows(1), letters(2);
    for (const int key : {GLFW_KEY_ENTER, GLFW_KEY_ESCAPE}) {
        keys.reset();
        keys.hold({key});
        for (KeyboardController* half : {&arrows, &letters}) {
            EXPECT_EQ(half->isStartPressed(), key == GLFW_KEY_ENTER);
            EXPECT_EQ(half->isBackPressed(), key == GLFW_KEY_ESCAPE);
        }
    }
    keys.hold({GLFW_KEY_LEFT, GLFW_KEY_RIGHT});
    EXPECT_EQ(arrows.getAxis(InputDevice::kSteeringAxis), 0.0f);
    arrows.update();
    EXPECT_EQ(keys.polls, 1) << "an update takes in key events";
}

} // namespace
