#include "app/match/PlayerRegistration.h"
#include "input/InputDevice.h"
#include "support/DataCapturedLog.h"
#include "support/HeadlessMatch.h"
#include "support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

class Registration : public testing::Test {
protected:
    /// One frame of the registration screen with these keys down.
    void frame(std::initializer_list<int> keys)
    {
        match.keys.hold(keys);
        registration.update();
    }

    std::string deviceOf(int player) const { return match.rules.getPlayers().at(static_cast<std::size_t>(player))->getDevice().getName(); }

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
    EXPECT_EQ(deviceOf(0), "WASD");
    EXPECT_EQ(log.count("DEBUG | Player registered\n"), 1);
}

TEST_F(Registration, WhoJoinInOneFrameComeInTheOrderOfTheDevices)
{
    frame({GLFW_KEY_1, GLFW_KEY_K});
    ASSERT_EQ(match.rules.getActorCount(), 2);
    EXPECT_EQ(deviceOf(0), "Pfeil");
    EXPECT_EQ(deviceOf(1), "WASD");
}

TEST_F(Registration, OneParticipantCannotStart)
{
    frame({GLFW_KEY_K});
    frame({GLFW_KEY_ENTER});
    EXPECT_FALSE(registration.shouldStart());
}

TEST_F(Registration, TwoParticipantsStartWithTheStartKeyOfARegisteredDevice)
{
    frame({GLFW_KEY_K});
    frame({GLFW_KEY_1});
    EXPECT_FALSE(registration.shouldStart());
    frame({GLFW_KEY_TAB});
    EXPECT_TRUE(registration.shouldStart());
    frame({GLFW_KEY_ENTER});
    EXPECT_TRUE(registration.shouldStart());
    frame({GLFW_KEY_SPACE});
    EXPECT_FALSE(registration.shouldStart());
}

TEST_F(Registration, EachPressOfTheSpaceBarAddsOneComputerPlayerAndTenAreTheMost)
{
    for (int press = 1; press <= 12; ++press) {
        for (int i = 0; i < 3; ++i) frame({GLFW_KEY_SPACE});
        EXPECT_EQ(match.rules.getComputerPlayerCount(), std::min(press, 10)) << "press " << press;
        frame({});
    }
    EXPECT_EQ(match.rules.getActorCount(), 10);
    EXPECT_EQ(match.rules.getHumanPlayerCount(), 0);
    frame({GLFW_KEY_ENTER, GLFW_KEY_TAB});
    EXPECT_FALSE(registration.shouldStart()) << "nobody has joined who could start";
}

TEST_F(Registration, AHeldSpaceBarCountsAnewWhenTheScreenIsShownAnew)
{
    frame({GLFW_KEY_SPACE});
    registration.restart();
    frame({GLFW_KEY_SPACE});
    EXPECT_EQ(match.rules.getComputerPlayerCount(), 2);
}

TEST_F(Registration, OnePersonAndAComputerPlayerCanStart)
{
    frame({GLFW_KEY_K});
    frame({GLFW_KEY_SPACE, GLFW_KEY_TAB});
    EXPECT_FALSE(registration.shouldStart()) << "W/A/S/D have not joined";
    frame({GLFW_KEY_ENTER});
    EXPECT_TRUE(registration.shouldStart());
}

TEST_F(Registration, SixteenParticipantsStartWithoutAButton)
{
    std::array<ScriptedDevice, 4> pads;
    for (ScriptedDevice& pad : pads) match.addPlayer(pad);
    for (int i = 0; i < 10; ++i) {
        frame({GLFW_KEY_SPACE});
        frame({});
    }
    frame({GLFW_KEY_K});
    EXPECT_FALSE(registration.shouldStart());
    frame({GLFW_KEY_1});
    EXPECT_EQ(match.rules.getActorCount(), 16);
    EXPECT_TRUE(registration.shouldStart());
    match.passes(30); // and sixteen cars can drive
}

} // namespace
