#include "match/PlayerRegistration.h"
#include "testing/CapturedLog.h"
#include "testing/HeadlessMatch.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

class Registration : public testing::Test {
protected:
    /// One frame of the registration screen with these keys down.
    void frame(std::initializer_list<int> keys)
    {
        match.keys.hold(keys);
        FrameTimer::getInstance()->tick();
        registration.update();
    }

    HeadlessMatch match;
    PlayerRegistration registration{match.rules};
};

TEST_F(Registration, TheFirstPressOfTheShootKeyJoinsAndHoldingItDoesNoMore)
{
    CapturedLog log;
    frame({GLFW_KEY_ENTER, GLFW_KEY_UP});
    EXPECT_EQ(match.rules.getActorCount(), 0);
    for (int i = 0; i < 3; ++i) frame({GLFW_KEY_1});
    frame({});
    frame({GLFW_KEY_1});

    ASSERT_EQ(match.rules.getActorCount(), 1);
    EXPECT_EQ(match.rules.getPlayers()[0]->getDevice().getName(), "WASD");
    EXPECT_EQ(log.count("DEBUG | Player registered\n"), 1);
}

TEST_F(Registration, TwoStartWithTheStartKeyOfADeviceThatHasJoined)
{
    frame({GLFW_KEY_K, GLFW_KEY_ENTER});
    EXPECT_FALSE(registration.shouldStart()) << "one alone";
    frame({});
    frame({GLFW_KEY_SPACE, GLFW_KEY_TAB});
    EXPECT_FALSE(registration.shouldStart()) << "W/A/S/D have not joined";
    frame({GLFW_KEY_ENTER});
    EXPECT_TRUE(registration.shouldStart()) << "a person and a computer player";
    frame({});
    frame({GLFW_KEY_1});
    EXPECT_FALSE(registration.shouldStart());
    frame({GLFW_KEY_TAB});
    EXPECT_TRUE(registration.shouldStart());
}

TEST_F(Registration, NoPressIsLeftOverForTheMatch)
{
    frame({GLFW_KEY_K});
    frame({GLFW_KEY_K, GLFW_KEY_1});
    for (int i = 0; i < 100; ++i) frame({}); // long enough for a first shot
    frame({GLFW_KEY_ENTER});
    ASSERT_TRUE(registration.shouldStart());
    match.passes(10);
    EXPECT_TRUE(match.rules.getBalls().empty());
}

TEST_F(Registration, EachPressOfTheSpaceBarAddsOneComputerPlayerAndTenAreTheMost)
{
    for (int press = 1; press <= 12; ++press) {
        for (int i = 0; i < 3; ++i) frame({GLFW_KEY_SPACE});
        EXPECT_EQ(match.rules.computerPlayerCount(), std::min(press, 10)) << "press " << press;
        if (press == 1) registration.restart(); // the screen is shown anew: the key that is still held counts anew
        else frame({});
        if (press == 3) { // a tap shorter than a pass counts as much, and so does one right after it
            for (int tap = 0; tap < 2; ++tap) {
                match.keys.tap(GLFW_KEY_SPACE);
                frame({});
            }
            press += 2;
        }
    }
    EXPECT_EQ(match.rules.getHumanPlayerCount(), 0);
    frame({GLFW_KEY_ENTER, GLFW_KEY_TAB});
    EXPECT_FALSE(registration.shouldStart()) << "nobody has joined who could start";
}

} // namespace
