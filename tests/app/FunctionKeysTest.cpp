#include "app/FunctionKeys.h"
#include "testing/ScriptedKeyboard.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(FunctionKeysTest, RunTheirOwnActionsOnceAPressOrInEveryFrameInTheOrderOfBinding)
{
    ScriptedKeyboard keys;
    FunctionKeys functionKeys;
    std::string done;
    const auto frame = [&](std::initializer_list<int> down) {
        done.clear();
        keys.hold(down);
        functionKeys.update();
        return done;
    };
    functionKeys.bind(12, FunctionKeys::When::kPressed, [&done] { done += 'p'; });
    functionKeys.bind(1, FunctionKeys::When::kHeld, [&done] { done += 'h'; });

    EXPECT_EQ(frame({GLFW_KEY_F1, GLFW_KEY_F12}), "ph");
    EXPECT_EQ(frame({GLFW_KEY_F1, GLFW_KEY_F12}), "h");
    EXPECT_EQ(frame({GLFW_KEY_F12}), "h") << "a key that was let go of reads as down once more";
    EXPECT_EQ(frame({GLFW_KEY_F12}), "");
    EXPECT_EQ(frame({GLFW_KEY_F2, GLFW_KEY_F11, GLFW_KEY_F13}), "");
    EXPECT_EQ(frame({GLFW_KEY_F12}), "p");
    frame({});
    for (int tap = 0; tap < 10; ++tap) {
        keys.tap(GLFW_KEY_F12);
        EXPECT_EQ(frame({}), "p") << "tap " << tap;
    }
}

} // namespace
