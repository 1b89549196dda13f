#include "GameSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kComputerPlayers = 10;
constexpr double kFirstHitSeconds = 200;

void tap(VirtualDisplay& screen, const char* key)
{
    screen.press({key});
    screen.release({key});
}

TEST(Match, PeopleAndComputerPlayersJoinDriveShootAndAreRankedEveryThreeSeconds)
{
    GameSession game;
    game.start();
    ChildProcess& program = game.program();
    game.holdUntil("k", "DEBUG | Registering (0) Player 0, Pfeil\nDEBUG | "); // lines arrive while the program runs
    tap(game.screen(), "Return");
    std::this_thread::sleep_for(1s); // a pass of the main loop must see it before the next key
    game.holdUntil("1", "Registering (0) Player 1, WASD\n");
    program.waitFor("the tenth computer player", [&] {
        tap(game.screen(), "space");
        std::this_thread::sleep_for(100ms);
        return program.count(", AI-Controller ") == kComputerPlayers;
    });
    EXPECT_EQ(program.count("Enter PlayGamestate"), 0) << "one player alone must not start, nor when the second joins";
    game.holdUntil("Return", "DEBUG | Leave RegisterPlayersGamestate\nDEBUG | Enter PlayGamestate\n");

    game.screen().press({"Up", "w", "k", "1"});
    program.waitForOutput("DEBUG | First:  (", 1, kFirstHitSeconds);
    const auto ranked = Clock::now();
    game.screen().release({"Up", "w", "k", "1"});
    program.waitForOutput("DEBUG | First:  (", 2);
    EXPECT_GT(Clock::now() - ranked, 2500ms);
    EXPECT_LT(Clock::now() - ranked, 8s) << "a busy machine's long passes included";

    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.complaints(), "");
}

TEST(Match, WithoutASoundDeviceGoesOnIntoAFlightAndBackUntilTheWindowIsClosed)
{
    GameSession game;
    game.start({{"ALSOFT_DRIVERS", "nosuch"}});
    const auto isStill = [&] {
        const Picture before = game.screen().look();
        std::this_thread::sleep_for(300ms); // some passes of a busy machine
        return changedShare(before, game.screen().look(), before.whole()) < 0.02;
    };
    game.startMatch();
    game.screen().press({"k"});
    game.holdUntil("F12", "DEBUG | Leave PlayGamestate\nDEBUG | Enter TestState1\n");
    game.program().waitFor("a view without cars that roll", isStill);

    const Picture view = game.screen().look();
    const ScreenArea ground{0, 0, 1024, 60}; // seen from below
    game.screen().press({"Shift_L", "w"});
    game.program().waitFor("a flight", [&] { return changedShare(view, game.screen().look(), ground) > 0.2; });
    game.screen().release({"Shift_L", "w"});
    game.program().waitFor("the flight's end", isStill);

    game.holdUntil("F11", "DEBUG | Leave TestState1\nDEBUG | Enter PlayGamestate\n");
    game.program().waitFor("cars that roll", [&] { return !isStill(); });
    game.screen().closeWindow();
    EXPECT_EQ(game.program().waitForExit(), 0);
    EXPECT_EQ(game.complaints(), "ERROR | Error, initializing Audiosystem!\n");
}

/// What ten taps on F2 did, which shows and hides the frame rate.
struct TenTaps {
    int toggles = 0;                   ///< how often the frame rate has come or gone
    Clock::duration longestPass = 0ms; ///< of the main loop; each shows in the smoke, which rises
    Clock::duration longestGap = 0ms;  ///< between two looks at the window
};

/// Tap that far apart, in a match in which a car stands and smokes.
TenTaps tapTenTimes(VirtualDisplay& screen, Clock::duration pause)
{
    const auto showsFrameRate = [&] {
        const std::vector<unsigned char> pixels = screen.lookAt({100, 665, 300, 30}).pixels;
        const auto dark = std::count_if(pixels.begin(), pixels.end(), [](int component) { return component < 40; });
        return dark > 1000; // the outlines of letters
    };
    TenTaps seen;
    bool shown = showsFrameRate();
    Picture smoke;
    auto lastLook = Clock::now(), lastPass = lastLook;
    for (int i = 0; i < 12; ++i) {
        if (i < 10) tap(screen, "F2");
        for (const auto end = Clock::now() + pause; Clock::now() < end; std::this_thread::sleep_for(1ms)) {
            const bool wasShown = std::exchange(shown, showsFrameRate());
            seen.toggles += shown != wasShown;
            seen.longestGap = std::max(seen.longestGap, Clock::now() - std::exchange(lastLook, Clock::now()));
            Picture now = screen.lookAt({246, 100, 20, 220});
            if (now.pixels == smoke.pixels) continue;
            smoke = std::move(now);
            seen.longestPass = std::max(seen.longestPass, Clock::now() - std::exchange(lastPass, Clock::now()));
        }
    }
    return seen;
}

// However long the machine takes for a pass of the main loop, taps come a little more than one apart: some come in
// adjacent passes, and no two in one.
TEST(Match, CountsEveryQuickTapOfAFunctionKey)
{
    GameSession game;
    game.start();
    game.startMatch();
    game.screen().press({"l", "Up"});
    Clock::duration pause = 100ms;
    int fairRounds = 0;
    bool isSteady = false;
    for (int round = 0; fairRounds < 5 && round < 12; ++round) {
        const TenTaps seen = tapTenTimes(game.screen(), pause);
        // Else a pass may have seen two taps as one, or two passes may have gone unseen. The first round sets the pace.
        const bool wasSteady = std::exchange(isSteady, seen.longestPass < pause && seen.longestGap < 20ms);
        if (isSteady && wasSteady) {
            ++fairRounds;
            EXPECT_EQ(seen.toggles, 10);
        }
        pause = std::min<Clock::duration>(seen.longestPass * 5 / 4, 200ms);
    }
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.complaints(), "");
    if (!fairRounds) GTEST_SKIP() << "a busy machine: its passes are too uneven";
}

} // namespace
