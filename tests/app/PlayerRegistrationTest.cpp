#include "app/match/PlayerRegistration.h"
#include "input/InputDevice.h"
#include "support/DataCapturedLog.h"
#include "support/HeadlessMatch.h"

#include <gtest/gtest.h>

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

} // namespace
