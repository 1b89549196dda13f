#include "testing/GameSession.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

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
        return changedShare(before, game.screen().look()) < 0.02;
    };
    game.startMatch();
    game.screen().press({"k"});
    game.holdUntil("F12", "DEBUG | Leave PlayGamestate\nDEBUG | Enter TestState1\n");
    game.program().waitFor("a view without cars that roll", isStill);

    const ScreenArea ground{0, 0, 1024, 60}; // seen from below
    const Picture view = game.screen().look(ground);
    game.screen().press({"Shift_L", "w"});
    game.program().waitFor("a flight", [&] { return changedShare(view, game.screen().look(ground)) > 0.2; });
    game.screen().release({"Shift_L", "w"});
    game.program().waitFor("the flight's end", isStill);

    game.holdUntil("F11", "DEBUG | Leave TestState1\nDEBUG | Enter PlayGamestate\n");
    game.program().waitFor("cars that roll", [&] { return !isStill(); });
    game.screen().closeWindow();
    EXPECT_EQ(game.program().waitForExit(), 0);
    EXPECT_EQ(game.complaints(), "ERROR | Error, initializing Audiosystem!\n");
}

} // namespace
