#include "physics/VehicleHandle.h"
#include "support/DataCapturedLog.h"
#include "support/HeadlessMatch.h"
#include "support/Near.h"
#include "support/ScriptedDevice.h"

#include <PxRigidDynamic.h>
#include <vehicle/PxVehicleDrive4W.h>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using Rumble = ScriptedDevice::Rumble;

class PlayerTest : public testing::Test {
protected:
    HeadlessMatch match;
    ScriptedDevice device;
};

TEST_F(PlayerTest, SettingUpBuildsTheCarItsNodesAndItsDress)
{
    Player& player = match.addPlayer(device);
    const glm::vec3 chassis = player.getPosition();

    // Fresh cars stand upright, facing +z.
    EXPECT_TRUE(isNear(player.getLaunchPosition() - chassis, glm::vec3(0, 2, 3)));
    EXPECT_TRUE(isNear(player.getCamera()->getPosition() - chassis, glm::vec3(0, 3.069f, -11.644f), 1e-3f));
    const glm::vec3 lookingAlong = -glm::vec3(glm::transpose(player.getCamera()->getView())[2]);
    EXPECT_TRUE(isNear(lookingAlong, glm::vec3(0, -0.1736f, 0.9848f), 1e-3f)) << "forwards, ten degrees down";

    ASSERT_EQ(match.stage.cars.size(), 1u);
    const CarNodes& nodes = match.stage.cars[0];
    EXPECT_TRUE(isNear(match.stage.colours[0], glm::vec4(0.9f, 0.2f, 0.1f, 1)));
    const glm::vec3 duckNose = glm::vec3(nodes.driver->getWorldTransform() * glm::vec4(100, 0, 0, 1)) - chassis;
    EXPECT_TRUE(isNear(duckNose, glm::vec3(0, 0, 1.5f))) << "the duck's mesh faces +x";
    const glm::vec3 axle = glm::vec3(nodes.wheels[0]->getWorldTransform() * glm::vec4(0, 1, 0, 0));
    EXPECT_TRUE(isNear(glm::abs(axle), glm::vec3(1, 0, 0), 1e-3f)) << "a tyre's axis is y";
    for (const char* name : {"Actor0", "Entchen", "Abschusspunkt", "PlayerCamera0", "Auspuff", "Tire"}) {
        EXPECT_NE(match.graph.getRoot()->find(name), nullptr) << name;
    }
    EXPECT_EQ(player.getVehicle()->getVehicle().mDriveDynData.getCurrentGear(), physx::PxVehicleGearsData::eFIRST);
}

TEST_F(PlayerTest, PlayersAreCountedNamedAndColouredInTheOrderOfJoining)
{
    CapturedLog log;
    ScriptedDevice second;
    Player& one = match.addPlayer(device);
    Player& two = match.addPlayer(second);
    two.addScore(3);

    EXPECT_EQ(one.getName(), "(0) Player 0, Script");
    EXPECT_EQ(two.getName(), "(3) Player 1, Script");
    EXPECT_TRUE(isNear(two.getColor(), glm::vec4(0.2f, 0.9f, 0.1f, 1)));
    EXPECT_TRUE(log.contains("DEBUG | Registering (0) Player 1, Script\n"));
}

TEST_F(PlayerTest, RespawningDrawsZFirstAndStopsTheCar)
{
    Player& player = match.addPlayer(device);
    device.axes[InputDevice::kThrottleAxis] = 1;
    match.passes(300);

    std::srand(7);
    const int z = std::rand() % 200 - 100;
    const int x = std::rand() % 200 - 100;
    std::srand(7);
    device.rumbles.clear();
    player.respawn();
    match.graph.update();

    EXPECT_TRUE(isNear(player.getPosition(), glm::vec3(x, 50, z)));
    const physx::PxRigidDynamic* body = player.getVehicle()->getActor();
    EXPECT_EQ(body->getLinearVelocity().magnitude() + body->getAngularVelocity().magnitude(), 0);
    EXPECT_TRUE(body->getGlobalPose().q.isIdentity());
    EXPECT_EQ(device.rumbles, std::vector<Rumble>({{600, 30000, 30000}}));
}

TEST_F(PlayerTest, DamageNeverTakesTheHealthBelowZeroAndDyingRestoresIt)
{
    Player& player = match.addPlayer(device);
    device.rumbles.clear();

    player.takeDamage(20);
    EXPECT_EQ(player.getHealth(), 80);
    EXPECT_EQ(device.rumbles, std::vector<Rumble>({{300, 60000, 60000}}));
    player.takeDamage(120);
    EXPECT_EQ(player.getHealth(), 0);
    EXPECT_EQ(player.getDeaths(), 0) << "the match decides about deaths";

    player.die();
    EXPECT_EQ(player.getHealth(), 100);
    EXPECT_EQ(player.getDeaths(), 1);
    EXPECT_EQ(device.rumbles.back(), (Rumble{600, 30000, 30000}));
}

TEST_F(PlayerTest, AnUnpluggedDeviceLeavesTheCarItsLastControlsAndItsSmoke)
{
    Player& player = match.addPlayer(device);
    device.axes[InputDevice::kThrottleAxis] = 0.75f;
    match.pass();
    device.connected = false;
    device.axes[InputDevice::kThrottleAxis] = 0;
    const int updates = device.updates;
    match.pass();

    EXPECT_FLOAT_EQ(player.getVehicle()->getRawInputs().getAnalogAccel(), 0.75f);
    EXPECT_EQ(device.updates, updates);
    const glm::vec3 before = player.getPosition();
    match.pass();
    EXPECT_TRUE(isNear(match.stage.emitterPosition, before)) << "the smoke comes from where the car was drawn last";
}

struct LabelRow {
    Viewport::Rect rect;
    double x, y;
};

TEST_F(PlayerTest, LabelsStandAtTheViewportsLeftEdgeAndNeverAboveTheWindow)
{
    Player& player = match.addPlayer(device);
    player.addScore(12);
    const LabelRow rows[] = {
        {{0, 0, 1024, 768}, -0.95, 0.9}, {{512, 384, 512, 384}, 0.05, 0.9}, {{512, 0, 512, 384}, 0.05, 0.9},
        {{681, 384, 340, 384}, 2.0 * 681 / 1024 - 0.95, 0.9},
        {{256, 576, 256, 192}, -0.45, 0.5}, // a lower edge high up pulls the label down
    };
    for (const LabelRow& row : rows) {
        player.getViewport()->setRect(row.rect.x, row.rect.y, row.rect.width, row.rect.height);
        match.stage.lines.clear();
        player.drawLabel();

        ASSERT_EQ(match.stage.lines.size(), 2u);
        EXPECT_EQ(match.stage.lines[0].text, "Pl. 1 (12)");
        EXPECT_EQ(match.stage.lines[1].text, "Script");
        EXPECT_NEAR(match.stage.lines[0].x, row.x, 1e-9);
        EXPECT_NEAR(match.stage.lines[0].y, row.y, 1e-9);
        EXPECT_NEAR(match.stage.lines[1].x, row.x, 1e-9);
        EXPECT_NEAR(match.stage.lines[1].y, row.y - 0.1, 1e-9);
    }
}

} // namespace
