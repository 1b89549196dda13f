#include "input/KeyboardController.h"
#include "physics/VehicleHandle.h"
#include "support/HeadlessMatch.h"

#include <gtest/gtest.h>

namespace {

constexpr int kPassesPerSecond = 120;

/// A player on flat ground whose car has come to rest on its wheels, driven with the arrow keys.
class DrivenCar {
public:
    DrivenCar() : match(HeadlessMatch::Ground::kFlat), device(1), player(match.addPlayer(device))
    {
        match.passes(4 * kPassesPerSecond);
        EXPECT_GT(up().y, 0.9f) << "the car did not land on its wheels";
        EXPECT_LT(std::abs(speed()), 0.1f);
    }

    glm::vec3 axis(int column) const
    {
        return glm::vec3(match.graph.getRoot()->find("PlayerCamera0")->getParent()->getWorldTransform()[column]);
    }
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

TEST(Driving, RightTurnsTheCarToItsDriversRight)
{
    DrivenCar car;
    const glm::vec3 before = car.forward();
    car.drive({GLFW_KEY_UP, GLFW_KEY_RIGHT}, 0.7);
    // The driver's right is -x of the car, so the nose turns clockwise seen from above.
    EXPECT_LT(glm::cross(before, car.forward()).y, -0.1f);
}

} // namespace
