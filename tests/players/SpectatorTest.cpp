#include "players/Spectator.h"
#include "app/base/FrameTimer.h"
#include "app/base/Logger.h"
#include "support/DataCapturedLog.h"
#include "support/HeadlessMatch.h"
#include "support/Near.h"
#include "support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

class SpectatorTest : public testing::Test {
protected:
    SpectatorTest() { match.pass(); }

    /// One frame with these buttons down and that much steering; how far the spectator came, in units of the frame's game time.
    glm::vec3 frame(std::initializer_list<int> buttons, float steering = 0)
    {
        device.buttons.fill(false);
        for (int button : buttons) device.buttons.at(static_cast<std::size_t>(button)) = true;
        device.axes[InputDevice::kSteeringAxis] = steering;
        const glm::vec3 before = spectator.getPosition();
        spectator.update();
        match.graph.update();
        return (spectator.getPosition() - before) / gameDelta();
    }

    glm::vec3 view() { return -glm::vec3(glm::transpose(spectator.getCamera()->getView())[2]); }

    HeadlessMatch match;
    ScriptedDevice driver, device;
    Player& player = match.addPlayer(driver);
    CapturedLog log;
    Spectator spectator{match.rules, device};
};

TEST_F(SpectatorTest, LooksOnFromItsOwnNodesAndIsNoPlayer)
{
    EXPECT_TRUE(log.contains("DEBUG | Registering Spectator 1, Script\n"));
    EXPECT_FALSE(spectator.isPlayer());
    EXPECT_TRUE(isNear(spectator.getPosition(), glm::vec3(0, 2, 5)));
    EXPECT_TRUE(isNear(spectator.getCamera()->getPosition(), glm::vec3(0, 2, 5)));
    EXPECT_TRUE(isNear(view(), glm::vec3(0, 0, -1)));
    Node* yaw = match.graph.getRoot()->find("Actor1")->find("ActorYaw1");
    ASSERT_NE(yaw, nullptr);
    EXPECT_NE(yaw->find("ActorPitch1"), nullptr);
}

TEST_F(SpectatorTest, FliesOneUnitASecondInAnyDirection)
{
    using Device = InputDevice;
    constexpr float kDiagonal = 0.70711f;
    const struct {
        std::initializer_list<int> buttons;
        glm::vec3 moved;
    } rows[] = {{{}, {0, 0, 0}}, {{Device::kAccelerate}, {0, 0, -1}}, {{Device::kBrake}, {0, 0, 1}}, {{Device::kSteerLeft}, {-1, 0, 0}},
        {{Device::kSteerRight}, {1, 0, 0}}, {{Device::kAccelerate, Device::kBrake}, {0, 0, 0}},
        {{Device::kAccelerate, Device::kSteerLeft}, {-kDiagonal, 0, -kDiagonal}}, {{Device::kShoot, Device::kHandBrake}, {0, 0, 0}}};
    for (const auto& row : rows) EXPECT_TRUE(isNear(frame(row.buttons), row.moved, 1e-3f));
    EXPECT_TRUE(isNear(view(), glm::vec3(0, 0, -1)));
}

TEST_F(SpectatorTest, SteeringTurnsAndTiltsByAThirdOfThatButFlightStaysLevel)
{
    constexpr float kRightAngle = 90 * 50; // steering for a quarter turn in one frame
    EXPECT_TRUE(isNear(frame({InputDevice::kAccelerate}, kRightAngle), glm::vec3(1, 0, 0), 1e-3f)) << "turns before it moves";
    EXPECT_TRUE(isNear(view(), glm::vec3(0.86603f, -0.5f, 0), 1e-3f)) << "to the right, and 30 degrees down";
    EXPECT_TRUE(isNear(frame({InputDevice::kAccelerate}), glm::vec3(1, 0, 0), 1e-3f));
}

TEST_F(SpectatorTest, WithoutItsDeviceItStaysAndComplainsInFrontOfTheNextLine)
{
    device.connected = false;
    for (int i = 0; i < 2; ++i) EXPECT_EQ(frame({InputDevice::kAccelerate}, 1), glm::vec3(0));
    EXPECT_EQ(device.updates, 0);
    logLine(2) << "next" << std::endl;
    EXPECT_TRUE(log.contains("\nDEBUG | \n\tERROR! Script Not Found!\n\n\tERROR! Script Not Found!\nnext\n"));
}

} // namespace
