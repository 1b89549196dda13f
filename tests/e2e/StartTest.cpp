#include "e2e/GameSession.h"

#include <gtest/gtest.h>

namespace {

TEST(Start, WithoutADisplaySaysSoAndEndsWithStatusOne)
{
    GameSession game;
    game.launch({}, {}, false);
    EXPECT_EQ(game.waitForExit(), 1);
    EXPECT_EQ(game.countInLog("ERROR | Glfw initialization failed"), 1) << game.log();
}

TEST(Start, WithoutOpenGl43SaysSoAndEndsWithStatusOne)
{
    GameSession game;
    game.launch({"MESA_GL_VERSION_OVERRIDE=3.0", "MESA_GLSL_VERSION_OVERRIDE=130"});
    EXPECT_EQ(game.waitForExit(), 1);
    EXPECT_EQ(game.countInLog("ERROR | Opengl 4.3 not available"), 1) << game.log();
}

TEST(Start, WithoutASoundDeviceSaysSoOnceAndPlaysOn)
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
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.complaints(), "ERROR | Error, initializing Audiosystem!\n");
}

TEST(Start, FromAnotherFolderFindsItsData)
{
    GameSession game;
    std::filesystem::create_directory("elsewhere");
    game.launch({}, "elsewhere");
    ASSERT_TRUE(game.waitForLog("Enter RegisterPlayersGamestate")) << game.log();
    EXPECT_EQ(game.countInLog("ERROR | "), 0) << game.log();
    ASSERT_TRUE(game.screen().waitForWindow("Quackdash", 10));
    EXPECT_EQ(game.quit(), 0);
}

TEST(Start, ClosingTheWindowEndsTheGameWithStatusZero)
{
    GameSession game;
    ASSERT_TRUE(game.start());
    game.screen().closeWindow();
    EXPECT_EQ(game.waitForExit(), 0);
}

} // namespace
