#include "GameSession.h"

#include <gtest/gtest.h>

namespace {

TEST(Start, WithoutADisplayOrOpenGl43SaysSoAndEndsWithStatusOne)
{
    GameSession game;
    game.launch({}, false);
    EXPECT_EQ(game.waitForExit(), 1);
    EXPECT_EQ(game.countInLog("ERROR | Glfw initialization failed"), 1) << game.log();

    game.launch({"MESA_GL_VERSION_OVERRIDE=3.0", "MESA_GLSL_VERSION_OVERRIDE=130"});
    EXPECT_EQ(game.waitForExit(), 1);
    EXPECT_EQ(game.countInLog("ERROR | Opengl 4.3 not available"), 1) << game.log();
}

TEST(Start, WithoutASoundDeviceSaysSoOnceAndPlaysOnUntilTheWindowIsClosed)
{
    GameSession game;
    game.launch({"ALSOFT_DRIVERS=nosuch"});
    ASSERT_TRUE(game.waitForLog("Enter RegisterPlayersGamestate")) << game.log();
    ASSERT_TRUE(game.screen().waitForWindow("Quackdash", 10));
    ASSERT_TRUE(game.startMatch()) << game.log();
    const Picture before = game.screen().look();
    game.screen().pressKey("Up");
    game.tap("k");
    EXPECT_TRUE(game.waitForChange(before, before.whole(), 0.1));
    game.screen().releaseKey("Up");
    game.screen().closeWindow();
    EXPECT_EQ(game.waitForExit(), 0);
    EXPECT_EQ(game.complaints(), "ERROR | Error, initializing Audiosystem!\n");
}

} // namespace
