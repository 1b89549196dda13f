#include "input/KeyboardController.h"
#include "physics/VehicleHandle.h"
#include "support/HeadlessMatch.h"

#include <gtest/gtest.h>

namespace {

constexpr int kPassesPerSecond = 120;

/// A player on flat ground whose car has come to rest on its wheels, driven with the arrow keys.
class Driving : public testing::Test {
protected:
    Driving() : match(HeadlessMatch::Ground::kFlat), device(1), player(match.addPlayer(device))
    {
        match.passes(4 * kPassesPerSecond);
        EXPECT_GT(up().y, 0.9f) << "the car did not land on its wheels";
        EXPECT_LT(std::abs(speed()), 0.1f);
    }

    glm::vec3 axis(int column) const { return glm::vec3(match.graph.getRoot()->find("PlayerCamera0")->getParent()->getWorldTransform()[column]); }
    glm::vec3 up() const { return axis(1); }
    glm::vec3 forward() const { return axis(2); }
    float speed() const { return player.getVehicle()->computeForwardSpeed(); }

    void drive(std::initializer_list<int> keys, double seconds)
    {
        match.keys.hold(keys);
        match.passes(static_cast<int>(seconds * kPassesPerSecond));
    }

    HeadlessMatch match;
    KeyboardController device;
    Player& player;
};

TEST_F(Driving, UpDrivesForwardsAndDownBrakesAndThenReverses)
{
    const glm::vec3 start = player.getPosition();
    const glm::vec3 ahead = forward();
    drive({GLFW_KEY_UP}, 2);
    EXPECT_GT(speed(), 3.0f);
    EXPECT_GT(glm::dot(player.getPosition() - start, ahead), 3.0f);

    drive({GLFW_KEY_DOWN}, 4);
    EXPECT_LT(speed(), -1.0f) << "the brake key did not turn into reverse";

    drive({GLFW_KEY_UP}, 4);
    EXPECT_GT(speed(), 1.0f) << "the throttle key did not end reverse";
}

TEST_F(Driving, RightTurnsTheCarToItsDriversRight)
{
    const glm::vec3 before = forward();
    drive({GLFW_KEY_UP, GLFW_KEY_RIGHT}, 0.7);
    // The driver's right is -x of the car, so the nose turns clockwise seen from above.
    EXPECT_LT(glm::cross(before, forward()).y, -0.1f);
}

TEST_F(Driving, TheHandBrakeSlowsARollingCar)
{
    drive({GLFW_KEY_UP}, 3);
    const float fast = speed();
    drive({}, 0.5);
    const float lostByRolling = fast - speed();

    drive({GLFW_KEY_UP}, 3);
    const float fastAgain = speed();
    drive({GLFW_KEY_L}, 0.5);
    EXPECT_GT(fastAgain - speed(), lostByRolling + 0.5f);
}

} // namespace
