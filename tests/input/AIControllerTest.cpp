#include "input/AIController.h"
#include "input/TargetChoice.h"
#include "testing/SteppedClock.h"

#include <glm/gtc/matrix_transform.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <vector>

namespace {

/// A car that stands where a test puts it, facing +z unless turned; the driver's right is -x.
struct FakePilot : IPilot {
    glm::vec3 getPosition() const override { return position; }
    glm::mat4 getChassisTransform() const override { return glm::translate(glm::mat4(1.0f), position) * attitude; }
    glm::mat4 getLaunchTransform() const override
    {
        return getChassisTransform() * glm::translate(glm::mat4(1.0f), glm::vec3(0, 2, 3));
    }
    float getForwardSpeed() const override { return speed; }
    int getDeaths() const override { return deaths; }

    glm::vec3 position{0.0f};
    glm::mat4 attitude{1.0f};
    float speed = 0;
    int deaths = 0;
};

struct FakeField : IField {
    int getActorCount() const override { return static_cast<int>(pilots.size()); }
    const IPilot& getPilot(int number) const override { return *pilots.at(static_cast<std::size_t>(number)); }
    int getFieldSize() const override { return 512; }

    std::vector<const IPilot*> pilots;
};

/// A computer driver with one opponent, and another one far away.
class AIControllerTest : public testing::Test {
protected:
    AIControllerTest()
    {
        FrameTimer::getInstance()->tick();
        field.pilots = {&own, &prey, &other};
        other.position = {30, 0, -400};
        lookAfresh();
    }

    /// Put an opponent that many degrees to the driver's right of straight ahead.
    void put(FakePilot& pilot, float degreesRight, float distance) const
    {
        const float radians = glm::radians(degreesRight);
        const glm::vec3 direction(-std::sin(radians), 0, std::cos(radians));
        pilot.position = own.position + glm::mat3(own.attitude) * direction * distance;
    }

    /// Look for an opponent, whatever was held before.
    void lookAfresh()
    {
        controller.emplace(0);
        controller->setPlayer(own, field);
        controller->update();
    }

    void nextFrame()
    {
        FrameTimer::getInstance()->tick();
        controller->update();
    }

    float steering() { return controller->getAxis(InputDevice::kSteeringAxis); }
    float throttle() { return controller->getAxis(InputDevice::kThrottleAxis); }
    bool shoots() { return controller->isPressed(InputDevice::kShoot); }

    SteppedClock clock;
    FakePilot own, prey, other;
    FakeField field;
    std::optional<AIController> controller;
};

TEST_F(AIControllerTest, SteersTowardsTheTargetShootsAtWhatIsAheadAndHandBrakesInSharpTurnsAtSpeed)
{
    const struct {
        float degreesRight, speed, steering, throttle;
        bool shoots, handBrakes;
    } rows[] = {
        {1, 0, 0.30389f, 1 - 1.0f / 360, true, false},
        {-19, 0, -0.37389f, 1 - 19.0f / 360, true, false},
        {21, 0, 0.38167f, 1 - 21.0f / 360, false, false},
        {-59, 0, -0.52944f, 1 - 59.0f / 360, false, false},
        {-61, 0, -0.53722f, 1, false, false},
        {89, 20, 0.64611f, 1, false, false},
        {91, 7.9f, 0.65389f, 1, false, false},
        {-91, 8.1f, -0.65389f, 1, false, true},
        {91, -20, 0.65389f, 1, false, false},
        {-170, 20, -0.96111f, 1, false, true},
    };
    own.position = {30, 12, -80};
    own.attitude = glm::rotate(glm::mat4(1.0f), glm::radians(100.0f), glm::vec3(0, 1, 0));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.degreesRight);
        own.speed = row.speed;
        put(prey, row.degreesRight, 40);
        prey.position.y = own.position.y + 25; // how high it stands does not matter
        lookAfresh();
        EXPECT_NEAR(steering(), row.steering, 1e-4f);
        EXPECT_NEAR(throttle(), row.throttle, 1e-4f);
        EXPECT_EQ(shoots(), row.shoots);
        EXPECT_EQ(controller->isPressed(InputDevice::kHandBrake), row.handBrakes);
        for (const int axis : {-1, 1, 3, 4}) EXPECT_EQ(controller->getAxis(axis), 0) << axis;
        for (const int button : {-1, 0, 1, 2, 3, 6, 7}) EXPECT_FALSE(controller->isPressed(button)) << button;
    }
}

TEST_F(AIControllerTest, PointBlankItShootsInAnyDirectionAndATargetWithoutADirectionIsNoTrouble)
{
    const struct {
        glm::vec3 position; // of the opponent
        bool shoots;
    } rows[] = {
        {{-1.0f, 0, -1.6f}, true},
        {{-1.1f, 0, -1.8f}, false},
        {{-1.0f, 1.9f, -1.6f}, false}, // the distance, unlike the angle, counts height
        {{0, 0, 0}, true},
        {{0, 30, 0}, false},
        {{0, 0, -40}, false},
    };
    for (const auto& [position, isShooting] : rows) {
        prey.position = position;
        lookAfresh();
        EXPECT_EQ(shoots(), isShooting) << position.x << " " << position.y << " " << position.z;
        EXPECT_TRUE(position.x != 0 || steering() == 0) << position.y << " " << position.z;
        EXPECT_TRUE(std::isfinite(steering()) && std::isfinite(throttle()));
    }
    own.attitude = glm::rotate(glm::mat4(1.0f), glm::radians(90.0f), glm::vec3(1, 0, 0)); // on its nose
    put(prey, 30, 40);
    lookAfresh();
    EXPECT_TRUE(std::isfinite(steering()) && std::isfinite(throttle()));
}

TEST_F(AIControllerTest, DropsATargetThatItHasNotSeenForTwoMillisecondsOrThatDied)
{
    put(prey, 5, 40);
    put(other, -150, 300);
    lookAfresh();
    ASSERT_GT(steering(), 0) << "the near one, to the right";
    put(prey, 60, 40);
    controller->update();
    EXPECT_GT(steering(), 0) << "it was ahead this very millisecond";
    nextFrame();
    EXPECT_LT(steering(), 0) << "another one is wanted";
    nextFrame();
    EXPECT_GT(steering(), 0) << "the first one may be chosen again";

    put(prey, 5, 40);
    lookAfresh();
    ++prey.deaths;
    controller->update();
    EXPECT_LT(steering(), 0);
    field.pilots = {&own, &prey};
    lookAfresh();
    ++prey.deaths;
    controller->update();
    for (int axis = 0; axis < 4; ++axis) EXPECT_EQ(controller->getAxis(axis), 0) << "nobody is left, axis " << axis;
    for (int button = 0; button < 7; ++button) EXPECT_FALSE(controller->isPressed(button)) << button;
    controller->update();
    EXPECT_GT(steering(), 0) << "found again, with its new number of deaths";
    controller->update();
    EXPECT_GT(steering(), 0);
}

TEST_F(AIControllerTest, PrefersTargetsThatAreNearAndAhead)
{
    const struct {
        const char* what;
        glm::vec3 hunter, one, two;
        int found; // 1 or 2; 0: nobody
    } rows[] = {
        {"the nearer of two in the same direction", {0, 60, 0}, {10, 60, 80}, {5, 60, 40}, 2},
        {"ahead rather than behind", {0, 60, 0}, {5, 60, 40}, {5, 60, -40}, 1},
        {"ahead rather than beside", {0, 60, 0}, {-40, 60, 0}, {5, 60, 40}, 2},
        {"close behind rather than far ahead", {0, 60, 0}, {5, 60, 90}, {5, 60, -20}, 2},
        {"height counts as distance", {0, 60, 0}, {5, 200, 40}, {5, 60, 60}, 2},
        {"straight above, where there is no direction", {0, 60, 0}, {0, 90, 0}, {500, 60, 500}, 1},
        {"not who is far outside", {500, 60, 0}, {513, 60, 20}, {400, 60, 0}, 2},
        {"but who is not so far", {500, 60, 0}, {511, 60, 20}, {400, 60, 0}, 1},
        {"outside on every side", {0, 60, -500}, {0, 60, -513}, {-513, 60, -500}, 0},
        {"outside in front", {0, 60, 500}, {0, 60, 513}, {513, 60, 500}, 0},
    };
    for (const auto& row : rows) {
        own.position = row.hunter;
        prey.position = row.one;
        other.position = row.two;
        const IPilot* const candidates[] = {nullptr, &prey, &other};
        EXPECT_EQ(chooseTarget(own, nullptr, field), candidates[row.found]) << row.what;
    }
}

} // namespace
