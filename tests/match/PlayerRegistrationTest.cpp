#include "match/PlayerRegistration.h"
#include "players/Ball.h"
#include "testing/CapturedLog.h"
#include "testing/HeadlessMatch.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

TEST(PlayerRegistrationTest, TakesWhoeverPressesAndStartsByTheKeyOfOneWhoHasJoinedAndIsNotAlone)
{
    const struct {
        std::initializer_list<int> keys;
        int people, computers;
        bool starts;
        const char* what;
    } rows[] = {
        {{GLFW_KEY_ENTER, GLFW_KEY_UP}, 0, 0, false, "nobody has joined"},
        {{GLFW_KEY_1}, 1, 0, false, "the first press joins"},
        {{GLFW_KEY_1, GLFW_KEY_TAB}, 1, 0, false, "held; but one is too few"},
        {{}, 1, 0, false, "released"},
        {{GLFW_KEY_1, GLFW_KEY_SPACE, GLFW_KEY_ENTER}, 1, 1, false, "a second press; the arrow keys have not joined"},
        {{GLFW_KEY_SPACE}, 1, 1, false, "held"},
        {{GLFW_KEY_TAB}, 1, 1, true, "a person and a computer player"},
        {{GLFW_KEY_K}, 2, 1, true, "a key that was let go of reads as down once more"},
        {{}, 2, 1, false, "the newcomer's start key of before is forgotten"},
        {{GLFW_KEY_ENTER, GLFW_KEY_SPACE}, 2, 2, true, "and counts now"},
    };
    HeadlessMatch match;
    PlayerRegistration registration(match.rules);
    const auto frame = [&](std::initializer_list<int> keys) {
        match.keys.hold(keys);
        FrameTimer::getInstance()->tick();
        registration.update();
        return match.rules.computerPlayerCount();
    };
    CapturedLog log;
    for (const auto& row : rows) {
        EXPECT_EQ(frame(row.keys), row.computers) << row.what;
        EXPECT_EQ(match.rules.getHumanPlayerCount(), row.people) << row.what;
        EXPECT_EQ(registration.shouldStart(), row.starts) << row.what;
    }
    EXPECT_EQ(log.count("DEBUG | Player registered\n"), 2);
    for (const char* who : {"0, WASD", "1, AI-Controller -1", "2, Pfeil", "3, AI-Controller 0"})
        EXPECT_EQ(log.count(std::string("DEBUG | Registering (0) Player ") + who + "\n"), 1) << who;
    registration.restart(); // the screen is shown anew
    EXPECT_EQ(frame({GLFW_KEY_SPACE}), 3) << "the key that is still held counts anew";
    for (int count = 4; count < 13; ++count) {
        frame({});
        match.keys.tap(GLFW_KEY_SPACE); // shorter than a frame
        EXPECT_EQ(frame({}), std::min(count, 10));
    }
    EXPECT_EQ(match.rules.getPlayers()[1]->getColor(), glm::vec4(0.2f, 0.9f, 0.1f, 1)) << "the second person's";
    EXPECT_EQ(match.rules.getActors().back()->getColor(), glm::vec4(0.1f, 0.1f, 0.1f, 0));
    match.clock.sleep(1); // the first shots are due
    match.update();
    for (const auto& ball : match.rules.getBalls())
        EXPECT_FALSE(ball->getOwner()->hasSound()) << "a press is left over";
}

} // namespace
