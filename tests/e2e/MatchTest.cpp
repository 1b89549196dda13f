#include "e2e/GameSession.h"

#include <gtest/gtest.h>

namespace {

const ScreenArea kLeftHalf{0, 0, 510, 768};
// Ground beside each player's car, out of the way of its smoke.
const ScreenArea kLeftGround{5, 420, 110, 260};
const ScreenArea kRightGround{518, 420, 110, 260};

/// Two players on one keyboard, from the first line of the log to the last.
class Match : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(game.start()) << game.log(); }

    void expectCleanLog()
    {
        for (const char* text : {"OpenGL Error:", " is not in Library", "ERROR | ", "WARNING | "}) EXPECT_EQ(game.countInLog(text), 0) << text;
    }

    GameSession game;
};

TEST_F(Match, TwoPlayersJoinSplitTheScreenAndDrive)
{
    const std::string log = game.log();
    std::size_t at = 0;
    for (const char* line : {"DEBUG | Library load Model: Models/duck.dae > Duck", "DEBUG | Initialize Renderer", "DEBUG | Glfw initialized",
             "DEBUG | Create Window", "DEBUG | Glew initialized", "DEBUG | Compile Shader ...", "DEBUG | Enter RegisterPlayersGamestate"}) {
        const std::size_t found = log.find(line, at);
        ASSERT_NE(found, std::string::npos) << line;
        at = found;
    }

    game.tap("k");
    ASSERT_TRUE(game.waitForLog("DEBUG | Registering (0) Player 0, Pfeil\nDEBUG | ")) << "lines must arrive while the program runs";
    game.tap("Return");
    EXPECT_EQ(game.countInLog("Enter PlayGamestate"), 0) << "one player alone must not start";
    game.tap("1");
    ASSERT_TRUE(game.waitForLog("Registering (0) Player 1, WASD"));
    ASSERT_TRUE(game.waitForLog("DEBUG | Player registered", 2));
    game.tap("Return");
    ASSERT_TRUE(game.waitForLog("DEBUG | Leave RegisterPlayersGamestate\nDEBUG | Enter PlayGamestate"));

    // Both cars fall in and come to rest; then each picture moves with its own player only.
    const auto atRest = [&] {
        const Picture before = game.screen().look();
        return !game.waitForChange(before, kLeftGround, 0.02, 2.0) && changedShare(before, game.screen().look(), kRightGround) < 0.02;
    };
    ASSERT_TRUE(waitUntil(60, atRest)) << "the cars never came to rest";

    Picture before = game.screen().look();
    game.screen().pressKey("Up");
    EXPECT_TRUE(game.waitForChange(before, kLeftGround, 0.3)) << "the arrow half did not drive";
    EXPECT_LT(changedShare(before, game.screen().look(), kRightGround), 0.1) << "WASD moved too";
    game.screen().releaseKey("Up");

    before = game.screen().look();
    game.screen().pressKey("w");
    EXPECT_TRUE(game.waitForChange(before, kRightGround, 0.3)) << "WASD did not drive";
    game.screen().releaseKey("w");

    EXPECT_EQ(game.quit(), 0);
    expectCleanLog();
}

TEST_F(Match, FunctionKeysDoTheirWorkAndLeaveTheLogClean)
{
    ASSERT_TRUE(game.startMatch());
    const ScreenArea helpText{10, 30, 700, 500};

    Picture before = game.screen().look();
    game.screen().pressKey("F1");
    EXPECT_TRUE(game.waitForChange(before, helpText, 0.02)) << "no help";
    game.screen().releaseKey("F1");

    const ScreenArea fpsText{100, 665, 400, 30};
    before = game.screen().lookAt(fpsText);
    game.tap("F2");
    EXPECT_TRUE(waitUntil(10, [&] { return changedShare(before, game.screen().lookAt(fpsText), before.whole()) > 0.05; })) << "no frame rate";
    game.tap("F2");

    before = game.screen().look();
    game.tap("F3");
    EXPECT_TRUE(game.waitForChange(before, kLeftHalf, 0.5)) << "no wire frame";
    game.tap("F3");

    for (const char* key : {"F4", "F5", "F6", "F8", "F9", "F7"}) game.tap(key);
    ASSERT_TRUE(game.waitForLog("Compile Shader ...", 60)) << "F7 did not load the shaders again";

    game.tap("F12");
    ASSERT_TRUE(game.waitForLog("Enter TestState1"));
    game.tap("F11");
    ASSERT_TRUE(game.waitForLog("Enter PlayGamestate", 2));
    EXPECT_EQ(game.quit(), 0);
    expectCleanLog();
}

} // namespace
