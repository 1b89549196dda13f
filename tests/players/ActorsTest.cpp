#include "base/Logger.h"
#include "base/Random.h"
#include "physics/PhysicNode.h"
#include "players/Ball.h"
#include "players/Spectator.h"
#include "testing/CapturedLog.h"
#include "testing/HeadlessMatch.h"
#include "testing/Near.h"

#include <gtest/gtest.h>
#include <vehicle/PxVehicleDrive4W.h>

namespace {

using Sounds = decltype(SilentPresentation::sounds);
using Device = InputDevice;

/// Somebody alone in a match.
class Actors : public testing::Test {
protected:
    HeadlessMatch match;
    Player& player = match.join();
    ScriptedDevice& device = match.devices.front();
};

TEST_F(Actors, KeepTheirControlsAndSmokeWithoutTheirDeviceShootWithItAndComeBackWhenTheyDie)
{
    match.rules.layoutViewports();
    EXPECT_EQ(player.getViewport()->getRect(), (Viewport::Rect{0, 0, 1024, 768}));
    EXPECT_FALSE(match.rules.freeViewportRect());
    device.axes = {0.75f, 0, 0.5f};
    match.pass(90); // the first shot is due
    device.axes = {};
    device.buttons[Device::kShoot] = true;
    device.connected = false;
    match.place(player, {0, 150, 0}, 90);
    match.update();
    const physx::PxVehicleDrive4WRawInputData& controls = player.getVehicle()->getRawInputs();
    EXPECT_EQ(glm::vec2(controls.getAnalogAccel(), controls.getAnalogSteer()), glm::vec2(0.75f, -0.5f));
    EXPECT_EQ(match.presentation.emitterPosition, player.getPosition());
    EXPECT_EQ(match.presentation.sounds, Sounds());

    device.connected = true;
    match.update();
    match.graph.update();
    EXPECT_EQ(match.presentation.sounds, (Sounds{{"bang", 0.3f}}));
    const PhysicNode& ball = *match.rules.getBalls().at(0)->getNode();
    EXPECT_TRUE(isNear(ball.getWorldPosition(), glm::vec3(3, 152, 0)));
    const physx::PxVec3 velocity = static_cast<physx::PxRigidDynamic*>(ball.actor)->getLinearVelocity();
    EXPECT_TRUE(isNear(glm::vec3(velocity.x, velocity.y, velocity.z), glm::vec3(150, 0, 0), 1e-3f));

    device.axes[Device::kBrakeAxis] = -1; // reverses, as it does not roll
    match.pass(10);                       // while the car falls
    EXPECT_NEAR(ball.getWorldPosition().x, 3 + 10 * 2.5f, 0.01f) << "150 units a second";
    device.rumbles.clear();
    sowRandom(7);
    const int z = drawRandom() % 200 - 100, x = drawRandom() % 200 - 100;
    sowRandom(7);
    player.takeDamage(20);
    player.die();
    match.graph.update();
    EXPECT_EQ(match.presentation.sounds, (Sounds{{"duck", 1}, {"duck", 1}}));
    EXPECT_EQ(device.rumbles, (decltype(device.rumbles){{300, 60000, 60000}, {600, 30000, 30000}}));
    const physx::PxRigidDynamic* body = player.getVehicle()->getActor();
    EXPECT_TRUE(isNear(player.getPosition(), glm::vec3(x, 50, z)));
    EXPECT_TRUE(body->getLinearVelocity().isZero() && body->getAngularVelocity().isZero());
    EXPECT_TRUE(body->getGlobalPose().q.isIdentity());
    match.update();
    EXPECT_EQ(controls.getAnalogAccel(), 1) << "the car is still in reverse";
}

TEST_F(Actors, WhoOnlyLookOnFlyTurnAndTiltAndComplainInTheNextLineWithoutTheirDevice)
{
    const struct {
        std::initializer_list<int> buttons;
        glm::vec3 moved;
        float degrees; // of turning
    } rows[] = {
        // clang-format off
        {{Device::kAccelerate}, {0, 0, -1}, 0},
        {{Device::kBrake, Device::kSteerLeft}, {-0.7071f, 0, 0.7071f}, 0},
        {{Device::kSteerRight}, {1, 0, 0}, 0},
        {{Device::kAccelerate, Device::kBrake, Device::kShoot}, {0, 0, 0}, 0},
        {{Device::kAccelerate}, {1, 0, 0}, 90}, // turns before it moves
        // clang-format on
    };
    match.pass();
    CapturedLog log;
    Spectator spectator(match.rules, device);
    match.graph.update();
    EXPECT_EQ(spectator.getCamera()->getPosition(), glm::vec3(0, 2, 5));
    for (const auto& [buttons, moved, degrees] : rows) {
        const glm::vec3 before = spectator.getPosition();
        device.buttons = {};
        for (const int button : buttons) device.buttons.at(static_cast<std::size_t>(button)) = true;
        device.axes[Device::kSteeringAxis] = 50 * degrees;
        spectator.update();
        match.graph.update();
        EXPECT_TRUE(isNear((spectator.getPosition() - before) / gameDelta(), moved, 1e-3f));
    }
    const glm::vec3 view = -glm::vec3(glm::transpose(spectator.getCamera()->getView())[2]);
    EXPECT_TRUE(isNear(view, glm::vec3(0.86603f, -0.5f, 0), 1e-3f)) << "to the right, and 30 degrees down";

    device.connected = false;
    spectator.update();
    logLine(2) << "next" << std::endl;
    EXPECT_TRUE(log.contains("DEBUG | Registering Spectator 1, Script\n"));
    EXPECT_TRUE(log.contains("\nDEBUG | \n\tERROR! Script Not Found!\nnext\n"));
}

} // namespace
