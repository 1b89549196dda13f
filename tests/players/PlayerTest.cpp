#include "testing/CapturedLog.h"
#include "testing/HeadlessMatch.h"
#include "testing/Near.h"

#include <PxRigidDynamic.h>
#include <vehicle/PxVehicleDrive4W.h>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

class PlayerTest : public testing::Test {
protected:
    HeadlessMatch match;
};

TEST_F(PlayerTest, CameraDuckAndTyresPointTheRightWay)
{
    Player& player = match.join();
    const glm::vec3 chassis = player.getPosition();

    // Fresh cars stand upright, facing +z.
    EXPECT_TRUE(isNear(player.getCamera()->getPosition() - chassis, glm::vec3(0, 3.069f, -11.644f), 1e-3f));
    const glm::vec3 lookingAlong = -glm::vec3(glm::transpose(player.getCamera()->getView())[2]);
    EXPECT_TRUE(isNear(lookingAlong, glm::vec3(0, -0.1736f, 0.9848f), 1e-3f)) << "forwards, ten degrees down";

    ASSERT_EQ(match.presentation.cars.size(), 1u);
    const CarNodes& nodes = match.presentation.cars[0];
    const glm::vec3 duckNose = glm::vec3(nodes.driver->getWorldTransform() * glm::vec4(100, 0, 0, 1)) - chassis;
    EXPECT_TRUE(isNear(duckNose, glm::vec3(0, 0, 1.5f))) << "the duck's mesh faces +x";
    const glm::vec3 axle = glm::vec3(nodes.wheels[0]->getWorldTransform() * glm::vec4(0, 1, 0, 0));
    EXPECT_TRUE(isNear(glm::abs(axle), glm::vec3(1, 0, 0), 1e-3f)) << "a tyre's axis is y";
}

TEST_F(PlayerTest, PeopleAndComputerPlayersAreCountedNamedAndColouredInTheOrderOfJoining)
{
    struct {
        bool isPerson;
        const char* name;
        glm::vec4 colour;
        float volume; // of the quack with which it appears
    } const rows[] = {{true, "(0) Player 0, Script", {0.9f, 0.2f, 0.1f, 1}, 1},
        {false, "(0) Player 1, AI-Controller -1", {1, 1, 1, 0}, 0.2f},
        {false, "(0) Player 2, AI-Controller 0", {0.9f, 0.9f, 0.9f, 0}, 0.2f},
        {true, "(0) Player 3, Script", {0.2f, 0.9f, 0.1f, 1}, 1}};
    for (const auto& row : rows) {
        CapturedLog log;
        Player& player = row.isPerson ? match.join() : match.addComputerPlayer();
        EXPECT_EQ(log.count(std::string("DEBUG | Registering ") + row.name + "\n"), 1) << log.text();
        EXPECT_EQ(player.getName(), row.name);
        EXPECT_TRUE(isNear(player.getColor(), row.colour)) << row.name;
        EXPECT_TRUE(isNear(match.presentation.colours.back(), row.colour)) << "the car is dressed in it";
        EXPECT_EQ(match.presentation.lastVolume, row.volume) << row.name;
    }
    match.rules.getPlayers()[1]->addScore(3);
    EXPECT_EQ(match.rules.getPlayers()[1]->getName(), "(3) Player 3, Script");
    match.pass();
    EXPECT_EQ(match.presentation.lines.size(), 4u) << "labels, of two lines, for the two people only";
}

TEST_F(PlayerTest, RespawningDrawsZFirstAndStopsTheCar)
{
    Player& player = match.join();
    match.deviceOf(player).axes[InputDevice::kThrottleAxis] = 1;
    match.passes(300);

    std::srand(7);
    const int z = std::rand() % 200 - 100;
    const int x = std::rand() % 200 - 100;
    std::srand(7);
    player.respawn();
    match.graph.update();

    EXPECT_TRUE(isNear(player.getPosition(), glm::vec3(x, 50, z)));
    const physx::PxRigidDynamic* body = player.getVehicle()->getActor();
    EXPECT_EQ(body->getLinearVelocity().magnitude() + body->getAngularVelocity().magnitude(), 0);
    EXPECT_TRUE(body->getGlobalPose().q.isIdentity());
}

TEST_F(PlayerTest, AnUnpluggedDeviceLeavesTheCarItsLastControlsAndItsSmoke)
{
    Player& player = match.join();
    ScriptedDevice& device = match.deviceOf(player);
    device.axes[InputDevice::kThrottleAxis] = 0.75f;
    match.pass();
    EXPECT_EQ(device.updates, 1);
    EXPECT_FLOAT_EQ(match.presentation.enginePitch, 0.75f) << "what the engine sounds by";
    device.connected = false;
    device.axes[InputDevice::kThrottleAxis] = 0;
    match.pass();

    EXPECT_FLOAT_EQ(player.getVehicle()->getRawInputs().getAnalogAccel(), 0.75f);
    EXPECT_EQ(device.updates, 1);
    const glm::vec3 before = player.getPosition();
    match.pass();
    EXPECT_TRUE(isNear(match.presentation.emitterPosition, before))
        << "the smoke comes from where the car was drawn last";
}

TEST_F(PlayerTest, LabelsStandAtTheViewportsLeftEdgeAndNeverAboveTheWindow)
{
    Player& player = match.join();
    player.addScore(12);
    struct {
        Viewport::Rect rect;
        double x, y;
    } const rows[] = {
        {{0, 0, 1024, 768}, -0.95, 0.9}, {{512, 384, 512, 384}, 0.05, 0.9},
        {{681, 0, 340, 384}, 2.0 * 681 / 1024 - 0.95, 0.9},
        {{256, 576, 256, 192}, -0.45, 0.5}, // a lower edge high up pulls the label down
    };
    for (const auto& [rect, x, y] : rows) {
        player.getViewport()->setRect(rect.x, rect.y, rect.width, rect.height);
        match.presentation.lines.clear();
        player.drawLabel();

        const std::vector<SilentPresentation::Line>& lines = match.presentation.lines;
        ASSERT_EQ(lines.size(), 2u);
        EXPECT_EQ(lines[0].text, "Pl. 1 (12)");
        EXPECT_EQ(lines[1].text, "Script");
        EXPECT_TRUE(isNear(glm::vec4(lines[0].x, lines[0].y, lines[1].x, lines[1].y), glm::vec4(x, y, x, y - 0.1)));
    }
}

} // namespace
