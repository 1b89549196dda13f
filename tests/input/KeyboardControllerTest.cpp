#include "input/KeyboardController.h"
#include "support/ScriptedKeyboard.h"

#include <gtest/gtest.h>

namespace {

struct KeyRow {
    int layout;
    int key;
    int button;
    int axis; // that the key moves; -1 for none
    float value;
};

class KeyboardKeys : public testing::TestWithParam<KeyRow> {};

TEST_P(KeyboardKeys, OneKeyPressesOneButtonAndMovesAtMostOneAxis)
{
    const KeyRow& row = GetParam();
    ScriptedKeyboard keys;
    KeyboardController device(row.layout);
    keys.hold({row.key});

    for (int button = 0; button <= 6; ++button) EXPECT_EQ(device.isPressed(button), button == row.button) << "button " << button;
    for (int axis = 0; axis <= 3; ++axis) EXPECT_EQ(device.getAxis(axis), axis == row.axis ? row.value : 0.0f) << "axis " << axis;

    KeyboardController otherHalf(3 - row.layout);
    for (int button = 0; button <= 6; ++button) EXPECT_FALSE(otherHalf.isPressed(button)) << "the other half's button " << button;
}

INSTANTIATE_TEST_SUITE_P(BothHalves, KeyboardKeys,
    testing::Values(KeyRow{1, GLFW_KEY_UP, 0, 0, 1.0f}, KeyRow{1, GLFW_KEY_DOWN, 1, 1, -1.0f}, KeyRow{1, GLFW_KEY_LEFT, 2, 2, -1.0f},
        KeyRow{1, GLFW_KEY_RIGHT, 3, 2, 1.0f}, KeyRow{1, GLFW_KEY_K, 4, -1, 0}, KeyRow{1, GLFW_KEY_L, 5, -1, 0},
        KeyRow{1, GLFW_KEY_ENTER, 6, -1, 0}, KeyRow{2, GLFW_KEY_W, 0, 0, 1.0f}, KeyRow{2, GLFW_KEY_S, 1, 1, -1.0f},
        KeyRow{2, GLFW_KEY_A, 2, 2, -1.0f}, KeyRow{2, GLFW_KEY_D, 3, 2, 1.0f}, KeyRow{2, GLFW_KEY_1, 4, -1, 0},
        KeyRow{2, GLFW_KEY_2, 5, -1, 0}, KeyRow{2, GLFW_KEY_TAB, 6, -1, 0}));

TEST(KeyboardController, OppositeSteeringKeysCancelOut)
{
    ScriptedKeyboard keys;
    KeyboardController arrows(1);
    keys.hold({GLFW_KEY_LEFT, GLFW_KEY_RIGHT});
    EXPECT_EQ(arrows.getAxis(InputDevice::kSteeringAxis), 0.0f);
}

TEST(KeyboardController, BothHalvesShareTheStartAndBackKeys)
{
    ScriptedKeyboard keys;
    KeyboardController arrows(1), letters(2);
    keys.hold({GLFW_KEY_ENTER});
    EXPECT_TRUE(arrows.isStartPressed() && letters.isStartPressed());
    EXPECT_FALSE(arrows.isBackPressed() || letters.isBackPressed());
    keys.hold({GLFW_KEY_ESCAPE});
    EXPECT_FALSE(arrows.isStartPressed() || letters.isStartPressed());
    EXPECT_TRUE(arrows.isBackPressed() && letters.isBackPressed());
}

TEST(KeyboardController, UpdateTakesInKeyEvents)
{
    ScriptedKeyboard keys;
    KeyboardController arrows(1);
    arrows.update();
    EXPECT_EQ(keys.polls, 1);
}

TEST(KeyboardController, ButtonsThatDoNotExistAreNeverPressed)
{
    ScriptedKeyboard keys;
    KeyboardController arrows(1);
    keys.hold({GLFW_KEY_W, GLFW_KEY_ENTER, GLFW_KEY_UP});
    EXPECT_FALSE(arrows.isPressed(-1));
    EXPECT_FALSE(arrows.isPressed(7));
}

} // namespace
