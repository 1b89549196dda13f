#include "input/KeyboardController.h"
#include "physics/VehicleHandle.h"
#include "support/FlatMatch.h"
#include "support/Near.h"
#include "support/ScriptedDevice.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

namespace {

class PlayerTest : public testing::Test, public FlatMatch {
protected:
    static glm::vec3 forwardOf(const Player& player)
    {
        const physx::PxVec3 d = player.getVehicle()->getActor()->getGlobalPose().q.getBasisVector2();
        return {d.x, d.y, d.z};
    }

    /// Where a node is, seen from the player's car.
    glm::vec3 fromChassis(const Player& player, const std::string& node)
    {
        match.graph.update();
        return match.graph.getRoot()->find(node)->getWorldPosition() - player.getPosition();
    }

    ScriptedDevice device;
};

/// A player at the arrow keys, whose car has landed.
class KeyboardPlayerTest : public PlayerTest {
protected:
    KeyboardPlayerTest() { match.passes(240); }

    void hold(float seconds, std::initializer_list<int> keys)
    {
        match.keys.hold(keys);
        match.passes(static_cast<int>(seconds * 120));
    }

    KeyboardController arrows{1};
    Player& player = match.addPlayer(arrows);
    glm::vec3 travelled(const glm::vec3& from) const { return player.getPosition() - from; }
};

} // namespace

TEST_F(KeyboardPlayerTest, DrivesForwardsBackwardsAndRound)
{
    const glm::vec3 start = player.getPosition();
    ASSERT_NEAR(start.y, 41.08f, 0.05f) << "the car was to have landed";
    hold(2, {GLFW_KEY_UP});
    EXPECT_GT(travelled(start).z, 8);
    EXPECT_GT(player.getVehicle()->computeForwardSpeed(), 10);

    hold(0.5f, {GLFW_KEY_UP, GLFW_KEY_RIGHT});
    EXPECT_LT(forwardOf(player).x, -0.1f) << "the driver's right is -x";
    hold(2, {GLFW_KEY_UP, GLFW_KEY_LEFT});
    EXPECT_GT(forwardOf(player).x, 0) << "the driver's left is +x";
}

TEST_F(KeyboardPlayerTest, BrakesAndThenBacksOut)
{
    const glm::vec3 start = player.getPosition();
    hold(2, {GLFW_KEY_DOWN});
    EXPECT_LT(travelled(start).z, -2);
    hold(2, {GLFW_KEY_UP});
    EXPECT_GT(player.getVehicle()->computeForwardSpeed(), 3);
}

TEST_F(KeyboardPlayerTest, SmokesWhereTheCarIs)
{
    hold(1, {GLFW_KEY_UP});
    const glm::vec3 before = player.getPosition();
    match.pass();
    EXPECT_TRUE(isNear(match.stage.emitterPosition, before));
}

TEST_F(PlayerTest, WithoutItsDeviceKeepsTheLastControls)
{
    Player& player = match.addPlayer(device);
    match.passes(240);
    device.axes = {1, 0, 0.5f, 0};
    match.pass();
    const int updates = device.updates;
    device.connected = false;
    device.axes = {0, -1, 0, 0};
    match.passes(120);
    EXPECT_EQ(device.updates, updates);
    EXPECT_EQ(player.getVehicle()->getRawInputs().getAnalogAccel(), 1);
    EXPECT_EQ(player.getVehicle()->getRawInputs().getAnalogSteer(), -0.5f);
    EXPECT_GT(player.getVehicle()->computeForwardSpeed(), 3);
    EXPECT_NE(match.stage.emitterPosition, glm::vec3(0));
}

TEST_F(PlayerTest, UsesTheHandBrakeAtHalfStrength)
{
    Player& player = match.addPlayer(device);
    device.pressed = {InputDevice::kHandBrake};
    match.pass();
    EXPECT_EQ(player.getVehicle()->getRawInputs().getAnalogHandbrake(), 0.5f);
    device.pressed = {};
    match.pass();
    EXPECT_EQ(player.getVehicle()->getRawInputs().getAnalogHandbrake(), 0);
}

TEST_F(PlayerTest, RespawnsUprightAndAtRestSomewhereAtHeightFifty)
{
    Player& player = match.addPlayer(device);
    physx::PxRigidDynamic& body = *player.getVehicle()->getActor();
    std::srand(7);
    const auto z = static_cast<float>(std::rand() % 200 - 100); // drawn before x
    const auto x = static_cast<float>(std::rand() % 200 - 100);
    ASSERT_NE(x, z);

    body.setGlobalPose({physx::PxVec3(1, 2, 3), physx::PxQuat(2, physx::PxVec3(1, 0, 0))});
    body.setLinearVelocity(physx::PxVec3(10, 20, 30));
    body.setAngularVelocity(physx::PxVec3(1, 2, 3));
    device.rumbles.clear();
    std::srand(7);
    player.respawn();
    EXPECT_EQ(body.getGlobalPose().p, physx::PxVec3(x, 50, z));
    EXPECT_TRUE(body.getGlobalPose().q.isIdentity());
    EXPECT_TRUE(body.getLinearVelocity().isZero());
    EXPECT_TRUE(body.getAngularVelocity().isZero());
    EXPECT_EQ(device.rumbles, (std::vector<ScriptedDevice::Rumble>{{600, 30000, 30000}}));
}

TEST_F(PlayerTest, LosesHealthDownToNothingAndComesBackWhole)
{
    Player& player = match.addPlayer(device);
    device.rumbles.clear();
    player.takeDamage(20);
    EXPECT_EQ(player.getHealth(), 80);
    EXPECT_EQ(device.rumbles, (std::vector<ScriptedDevice::Rumble>{{300, 60000, 60000}}));
    player.takeDamage(120);
    EXPECT_EQ(player.getHealth(), 0);
    EXPECT_EQ(player.getDeaths(), 0);

    player.addScore(3);
    player.getVehicle()->placeAt({0, 1, 0});
    player.die();
    EXPECT_EQ(player.getHealth(), 100);
    EXPECT_EQ(player.getDeaths(), 1);
    EXPECT_EQ(player.getScore(), 3) << "dying costs no points";
    EXPECT_EQ(player.getVehicle()->getActor()->getGlobalPose().p.y, 50);
}

TEST_F(PlayerTest, NumbersAndColoursPlayersInOrderOfJoining)
{
    KeyboardController letters(2);
    Player& first = match.addPlayer(device);
    Player& second = match.addPlayer(letters);
    second.addScore(3);
    EXPECT_EQ(first.getName(), "(0) Player 0, script");
    EXPECT_EQ(second.getName(), "(3) Player 1, WASD");
    EXPECT_EQ(match.stage.colours, (std::vector<glm::vec4>{{0.9f, 0.2f, 0.1f, 1}, {0.2f, 0.9f, 0.1f, 1}}));
    EXPECT_EQ(match.graph.getRoot()->find("Actor1"), second.getChassisNode()->getParent());
    EXPECT_EQ(second.getViewport()->camera, second.getCamera());
}

TEST_F(PlayerTest, HangsItsNodesOnTheCar)
{
    Player& player = match.addPlayer(device);
    EXPECT_TRUE(isNear(fromChassis(player, "PlayerCamera0"), glm::vec3(0, 3.069f, -11.644f), 1e-3f));
    EXPECT_TRUE(isNear(fromChassis(player, "Abschusspunkt"), glm::vec3(0, 2, 3)));
    EXPECT_TRUE(isNear(player.getLaunchPosition(), player.getPosition() + glm::vec3(0, 2, 3)));

    ASSERT_EQ(match.stage.cars.size(), 1u);
    const CarNodes& car = match.stage.cars[0];
    const glm::mat3 driver(car.driver->getWorldTransform());
    EXPECT_TRUE(isNear(driver * glm::vec3(1, 0, 0), glm::vec3(0, 0, 0.015f))) << "the duck, which faces +x, faces forward";
    EXPECT_TRUE(isNear(car.exhaust->getWorldPosition(), glm::vec3(0)));
    for (const Node* tyre : car.wheels) {
        const glm::vec3 axis = glm::mat3(tyre->getWorldTransform()) * glm::vec3(0, 1, 0);
        EXPECT_NEAR(glm::abs(axis.x), 1, 1e-4f) << "a tyre's axis is y, a wheel's is x";
    }
}

TEST_F(PlayerTest, LabelsItsViewportAtTheUpperLeft)
{
    Player& player = match.addPlayer(device);
    player.addScore(4);
    struct Row {
        int x, y;
        double labelX, labelY;
    };
    for (const Row& row : {Row{0, 0, -0.95, 0.9}, Row{512, 384, 0.05, 0.9}, Row{256, 420, -0.45, 0.9}, Row{681, 600, 0.380078125, 0.4375}}) {
        SCOPED_TRACE(testing::Message() << row.x << ", " << row.y);
        player.getViewport()->setRect(row.x, row.y, 100, 100);
        match.stage.lines.clear();
        player.drawLabel();
        ASSERT_EQ(match.stage.lines.size(), 2u);
        EXPECT_EQ(match.stage.lines[0].text, "Pl. 1 (4)");
        EXPECT_EQ(match.stage.lines[1].text, "script");
        for (const SilentStage::Line& line : match.stage.lines) EXPECT_NEAR(line.x, row.labelX, 1e-9);
        EXPECT_NEAR(match.stage.lines[0].y, row.labelY, 1e-9);
        EXPECT_NEAR(match.stage.lines[1].y, row.labelY - 0.1, 1e-9);
    }
}
