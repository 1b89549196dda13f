#include "app/FunctionKeys.h"
#include "support/ScriptedKeyboard.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using When = FunctionKeys::When;

class FunctionKeysTest : public testing::Test {
protected:
    /// What the bound actions wrote in a frame with these keys down.
    std::string frame(std::initializer_list<int> down)
    {
        done.clear();
        keys.hold(down);
        functionKeys.update();
        return done;
    }

    void bind(int number, When when, char mark)
    {
        functionKeys.bind(number, when, [this, mark] { done += mark; });
    }

    ScriptedKeyboard keys;
    FunctionKeys functionKeys;
    std::string done;
};

TEST_F(FunctionKeysTest, PressedFiresOnceAPressAndHeldInEveryFrame)
{
    bind(3, When::kPressed, 'p');
    bind(7, When::kHeld, 'h');
    EXPECT_EQ(frame({GLFW_KEY_F3, GLFW_KEY_F7}), "ph");
    EXPECT_EQ(frame({GLFW_KEY_F3, GLFW_KEY_F7}), "h");
    EXPECT_EQ(frame({GLFW_KEY_F3}), "");
    EXPECT_EQ(frame({}), "");
    EXPECT_EQ(frame({GLFW_KEY_F3}), "p");
}

TEST_F(FunctionKeysTest, EachKeyRunsItsOwnActionInTheOrderOfBinding)
{
    bind(12, When::kPressed, 'l');
    bind(1, When::kHeld, 'f');
    EXPECT_EQ(frame({GLFW_KEY_F1, GLFW_KEY_F12}), "lf");
    EXPECT_EQ(frame({GLFW_KEY_F2, GLFW_KEY_F11, GLFW_KEY_F13}), "");
}

} // namespace
