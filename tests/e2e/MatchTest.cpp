#include "GameSession.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace {

constexpr int kComputerPlayers = 10;
constexpr double kFirstHitSeconds = 200;

const ScreenArea kLeftHalf{0, 0, 510, 768};
// The words "Pfeil" and "WASD" of the two labels.
const ScreenArea kLeftLabel{22, 48, 180, 36};
const ScreenArea kRightLabel{535, 48, 170, 36};
// Above the duck's head, where its shots leave: a point that stands still in the picture.
const ScreenArea kLaunchPoint{246, 272, 20, 34};

/// Two people on one keyboard, from the first line of the log to the last.
class Match : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(game.start()) << game.log(); }

    void TearDown() override
    {
        EXPECT_EQ(game.quit(), 0);
        EXPECT_EQ(game.complaints(), "");
    }

    /// Waits until the region holds more dark pixels than that, or no more.
    bool waitForDark(const ScreenArea& region, int pixels, bool more)
    {
        return waitUntil(20, [&] { return (darkPixels(game.screen().look(), region) > pixels) == more; });
    }

    bool waitForSplitScreen() { return waitForDark(kLeftLabel, 200, true) && waitForDark(kRightLabel, 200, true); }

    GameSession game;
};

TEST_F(Match, PeopleAndComputerPlayersJoinDriveShootAndAreRankedEveryThreeSeconds)
{
    game.tap("k");
    ASSERT_TRUE(game.waitForLog("DEBUG | Registering (0) Player 0, Pfeil\nDEBUG | "))
        << "lines must arrive while the program runs";
    game.tap("Return");
    game.tap("1");
    ASSERT_TRUE(game.waitForLog("Registering (0) Player 1, WASD"));
    EXPECT_EQ(game.countInLog("Enter PlayGamestate"), 0)
        << "one player alone must not start, nor when the second joins";
    ASSERT_TRUE(waitUntil(60, [this] {
        game.tap("space");
        return game.countInLog(", AI-Controller ") == kComputerPlayers;
    })) << game.log();
    game.tap("Return");
    ASSERT_TRUE(game.waitForLog("DEBUG | Leave RegisterPlayersGamestate\nDEBUG | Enter PlayGamestate"));
    EXPECT_TRUE(waitForSplitScreen());

    const Picture before = game.screen().look();
    for (const char* key : {"Up", "w", "k", "1"}) game.screen().pressKey(key);
    // One of the two may have landed on its tail and see the sky.
    EXPECT_TRUE(game.waitForChange(before, before.whole(), 0.1)) << "nobody sees anything else than at the start";
    ASSERT_TRUE(game.waitForLog("DEBUG | First:  (", 1, kFirstHitSeconds)) << "nobody hit anybody";
    for (const char* key : {"Up", "w", "k", "1"}) game.screen().releaseKey(key);

    ASSERT_TRUE(game.waitForLog("First:  (", game.countInLog("First:  (") + 1)); // the clock starts with a fresh one
    const auto ranked = std::chrono::steady_clock::now();
    ASSERT_TRUE(game.waitForLog("First:  (", game.countInLog("First:  (") + 1));
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - ranked;
    EXPECT_GT(seconds.count(), 2.5);
    EXPECT_LT(seconds.count(), 8) << "a busy machine's long passes included";
}

TEST_F(Match, FunctionKeysDoTheirWorkAndLeaveTheLogClean)
{
    ASSERT_TRUE(game.startMatch());
    Picture before = game.screen().look();
    game.screen().pressKey("F1");
    EXPECT_TRUE(game.waitForChange(before, {10, 30, 700, 500}, 0.02)) << "no help";
    game.screen().releaseKey("F1");

    const ScreenArea fpsText{100, 665, 400, 30};
    before = game.screen().lookAt(fpsText);
    game.tap("F2");
    EXPECT_TRUE(waitUntil(10, [&] {
        return changedShare(before, game.screen().lookAt(fpsText), before.whole()) > 0.05;
    })) << "no frame rate";
    game.tap("F2");

    before = game.screen().look();
    game.tap("F3");
    EXPECT_TRUE(game.waitForChange(before, kLeftHalf, 0.5)) << "no wire frame";
    game.tap("F3");

    ASSERT_TRUE(waitForSplitScreen()) << "the wire frame stays";
    const int horizon = darkPixels(game.screen().look(), kLaunchPoint); // its outline may be there
    game.screen().pressKey("F6");
    EXPECT_TRUE(waitForDark(kLaunchPoint, horizon + 50, true)) << "no marker";
    game.screen().releaseKey("F6");
    EXPECT_TRUE(waitForDark(kLaunchPoint, horizon + 20, false)) << "the marker stays";

    for (const char* key : {"F4", "F5", "F8", "F9", "F7"}) game.tap(key);
    ASSERT_TRUE(game.waitForLog("Compile Shader ...", 60)) << "F7 did not load the shaders again";
}

TEST_F(Match, F12LeavesItForAFlightOverTheGroundAndF11ComesBack)
{
    ASSERT_TRUE(game.startMatch() && waitForSplitScreen());
    game.tap("F12");
    ASSERT_TRUE(game.waitForLog("DEBUG | Leave PlayGamestate\nDEBUG | Enter TestState1"));
    EXPECT_TRUE(waitForDark(kLeftLabel, 0, false) && waitForDark(kRightLabel, 0, false)) << "still the split screen";

    const ScreenArea ground{0, 0, 1024, 60};
    const Picture view = game.screen().look();
    std::this_thread::sleep_for(std::chrono::milliseconds(400));
    EXPECT_LT(changedShare(view, game.screen().look(), ground), 0.02) << "flies by itself";
    for (const char* key : {"Shift_L", "w"}) game.screen().pressKey(key);
    EXPECT_TRUE(game.waitForChange(view, ground, 0.2)) << "W does not fly";
    for (const char* key : {"w", "Shift_L"}) game.screen().releaseKey(key);

    game.tap("F11");
    ASSERT_TRUE(game.waitForLog("DEBUG | Leave TestState1\nDEBUG | Enter PlayGamestate"));
    EXPECT_TRUE(waitForSplitScreen()) << "not split again";
}

} // namespace
