#include "players/Spectator.h"
#include "base/FrameTimer.h"
#include "base/Logger.h"
#include "testing/CapturedLog.h"
#include "testing/HeadlessMatch.h"
#include "testing/Near.h"

#include <gtest/gtest.h>

namespace {

using Device = InputDevice;

class SpectatorTest : public testing::Test {
protected:
    SpectatorTest() { match.pass(); }

    /// One frame with these buttons down and that much steering; how far the spectator came, in units of the frame's
    /// game time.
    glm::vec3 frame(std::initializer_list<int> buttons, float steering = 0)
    {
        device.buttons.fill(false);
        for (int button : buttons) device.buttons.at(static_cast<std::size_t>(button)) = true;
        device.axes[Device::kSteeringAxis] = steering;
        const glm::vec3 before = spectator.getPosition();
        spectator.update();
        match.graph.update();
        return (spectator.getPosition() - before) / gameDelta();
    }

    glm::vec3 view() { return -glm::vec3(glm::transpose(spectator.getCamera()->getView())[2]); }

    HeadlessMatch match;
    Player& driver = match.join();
    ScriptedDevice device;
    CapturedLog log;
    Spectator spectator{match.rules, device};
};

TEST_F(SpectatorTest, FliesLevelInAnyDirectionAndTurnsAndTiltsBySteering)
{
    EXPECT_TRUE(isNear(spectator.getCamera()->getPosition(), glm::vec3(0, 2, 5)));
    EXPECT_TRUE(isNear(view(), glm::vec3(0, 0, -1)));
    constexpr float kDiagonal = 0.70711f;
    constexpr float kRightAngle = 90 * 50; // steering for a quarter turn in one frame
    const struct {
        std::initializer_list<int> buttons;
        glm::vec3 moved;
        float steering = 0;
    } rows[] = {{{}, {0, 0, 0}}, {{Device::kAccelerate}, {0, 0, -1}}, {{Device::kBrake}, {0, 0, 1}},
        {{Device::kSteerLeft}, {-1, 0, 0}}, {{Device::kSteerRight}, {1, 0, 0}},
        {{Device::kAccelerate, Device::kBrake}, {0, 0, 0}},
        {{Device::kAccelerate, Device::kSteerLeft}, {-kDiagonal, 0, -kDiagonal}},
        {{Device::kShoot, Device::kHandBrake}, {0, 0, 0}},
        {{Device::kAccelerate}, {1, 0, 0}, kRightAngle}, // turns before it moves
        {{Device::kAccelerate}, {1, 0, 0}}};
    for (const auto& [buttons, moved, steering] : rows) EXPECT_TRUE(isNear(frame(buttons, steering), moved, 1e-3f));
    EXPECT_TRUE(isNear(view(), glm::vec3(0.86603f, -0.5f, 0), 1e-3f)) << "to the right, and 30 degrees down";
}

TEST_F(SpectatorTest, WithoutItsDeviceItStaysAndComplainsInFrontOfTheNextLine)
{
    device.connected = false;
    for (int i = 0; i < 2; ++i) EXPECT_EQ(frame({Device::kAccelerate}, 1), glm::vec3(0));
    EXPECT_EQ(device.updates, 0);
    logLine(2) << "next" << std::endl;
    EXPECT_TRUE(log.contains("DEBUG | Registering Spectator 1, Script\n"));
    EXPECT_TRUE(log.contains("\nDEBUG | \n\tERROR! Script Not Found!\n\n\tERROR! Script Not Found!\nnext\n"));
}

} // namespace
