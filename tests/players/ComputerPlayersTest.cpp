#include "input/AIController.h"
#include "input/TargetChoice.h"
#include "testing/HeadlessMatch.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

/// Three cars, put where a test wants them, of which a computer drives one.
class ComputerPlayers : public testing::Test {
protected:
    ComputerPlayers() { match.place(hunter, {30, 90, -80}, kHeading); }

    /// Put an opponent that many degrees to the hunter's right of straight ahead.
    void put(Player& player, float degreesRight, float distance, float higher = 0)
    {
        const float angle = glm::radians(kHeading - degreesRight);
        match.place(player, hunter.getPosition() + glm::vec3(distance * sin(angle), higher, distance * cos(angle)));
    }

    /// Look for somebody with fresh eyes.
    void look()
    {
        driver = AIController(0);
        driver.setPlayer(hunter, match.rules);
        driver.update();
    }

    static constexpr float kHeading = 100; // degrees, of the hunter
    HeadlessMatch match;
    Player &hunter = match.join(), &prey = match.join(), &other = match.join();
    AIController driver{0};
};

TEST_F(ComputerPlayers, SteerTowardsTheTargetShootAtWhatIsAheadOrCloseAndHandBrakeInSharpTurnsAtSpeed)
{
    const struct {
        float degreesRight, distance, higher, speed, throttle, steering;
        bool shoots, handBrakes;
    } rows[] = {
        {-19, 40, 25, 0, 1 - 19.0f / 360, -0.37389f, true, false},
        {21, 40, 25, 0, 1 - 21.0f / 360, 0.38167f, false, false},
        {-59, 40, 25, 0, 1 - 59.0f / 360, -0.52944f, false, false},
        {-61, 40, 25, 0, 1, -0.53722f, false, false},
        {89, 40, 0, 20, 1, 0.64611f, false, false},
        {91, 40, 0, 7.9f, 1, 0.65389f, false, false},
        {-91, 40, 0, 8.1f, 1, -0.65389f, false, true},
        {150, 1.9f, 0, 0, 1, 0.88333f, true, false},
        {150, 2.1f, 0, 0, 1, 0.88333f, false, false},
        {0, 0, 30, 0, 1, 0, false, false},
    };
    match.place(other, {600, 90, 0}); // off the field
    for (const auto& row : rows) {
        put(prey, row.degreesRight, row.distance, row.higher);
        const glm::vec3 velocity = glm::vec3(hunter.getChassisTransform()[2]) * row.speed;
        hunter.getVehicle()->getActor()->setLinearVelocity({velocity.x, velocity.y, velocity.z});
        look();
        const float axes[] = {row.throttle, 0, row.steering, 0};
        for (int axis = 0; axis < 4; ++axis) EXPECT_NEAR(driver.getAxis(axis), axes[axis], 1e-4f) << row.degreesRight;
        const bool buttons[] = {false, false, false, false, row.shoots, row.handBrakes, false};
        for (int button = 0; button < 7; ++button)
            EXPECT_EQ(driver.isPressed(button), buttons[button]) << row.degreesRight;
    }
}

TEST_F(ComputerPlayers, DropATargetThatDiedOrWasNotAheadTwoMillisecondsAgo)
{
    const auto expect = [this](float side, const char* what) {
        driver.update();
        EXPECT_EQ(glm::sign(driver.getAxis(InputDevice::kSteeringAxis)), side) << what;
    };
    put(prey, 5, 40);
    put(other, -150, 300);
    look();
    put(prey, 60, 40);
    expect(1, "was ahead this very millisecond");
    for (const float side : {-1.0f, 1.0f}) {
        FrameTimer::getInstance()->tick();
        expect(side, "not the one that was just dropped");
    }
    put(prey, 5, 40);
    look();
    prey.die();
    expect(-1, "the near one has died");
    match.place(other, {600, 90, 0}); // off the field
    put(prey, 5, 40);
    look();
    prey.die();
    expect(0, "nobody is left");
    EXPECT_TRUE(driver.getAxis(InputDevice::kThrottleAxis) == 0 && !driver.isPressed(InputDevice::kShoot));
    for (int i = 0; i < 2; ++i) expect(1, "found again, with its deaths so far");
}

TEST_F(ComputerPlayers, PreferTargetsThatAreNearAndAheadAndOnTheField)
{
    const std::tuple<glm::vec3, glm::vec3, const char*> rows[] = {
        {{10, 60, 80}, {5, 60, 40}, "two, the nearer in the same direction"},
        {{5, 60, 40}, {5, 60, -40}, "one, ahead rather than behind"},
        {{5, 60, 90}, {5, 60, -20}, "two, close behind rather than far ahead"},
        {{5, 200, 40}, {5, 60, 60}, "two, as height counts"},
        {{0, 90, 0}, {500, 60, 500}, "one, right above, where there is no direction"},
        {{0, 60, 513}, {0, 60, -511}, "two, as one is off the field"},
        {{0, 60, 511}, {0, 60, -513}, "one"},
        {{513, 60, 0}, {-511, 60, 0}, "two"},
        {{511, 60, 0}, {-513, 60, 0}, "one"},
    };
    match.place(hunter, {0, 60, 0});
    for (const auto& [one, two, found] : rows) {
        match.place(prey, one);
        match.place(other, two);
        EXPECT_EQ(chooseTarget(hunter, nullptr, match.rules), found[0] == 'o' ? &prey : &other) << found;
    }
}

} // namespace
