#include "input/AIController.h"
#include "testing/SteppedClock.h"

#include <glm/gtc/matrix_transform.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

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

/// One opponent, which is found unless it is excluded.
struct FakeHunt : IHunt {
    const IPilot* findTarget(const IPilot&, const IPilot* excluded) const override
    {
        ++searches;
        lastExcluded = excluded;
        return prey == excluded ? nullptr : prey;
    }

    const IPilot* prey = nullptr;
    mutable int searches = 0;
    mutable const IPilot* lastExcluded = nullptr;
};

class AIControllerTest : public testing::Test {
protected:
    AIControllerTest()
    {
        FrameTimer::getInstance()->tick();
        controller = std::make_unique<AIController>(0);
        controller->take(own, hunt);
        hunt.prey = &prey;
    }

    /// The opponent stands that many degrees to the driver's right of straight ahead.
    void preyAt(float degreesRight, float distance)
    {
        const float radians = glm::radians(degreesRight);
        prey.position =
            own.position + glm::mat3(own.attitude) * glm::vec3(-std::sin(radians), 0, std::cos(radians)) * distance;
    }

    /// A fresh look at the opponent, whatever was held before.
    void lookAfresh()
    {
        controller = std::make_unique<AIController>(0);
        controller->take(own, hunt);
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
    bool handBrakes() { return controller->isPressed(InputDevice::kHandBrake); }

    SteppedClock clock;
    FakePilot own, prey;
    FakeHunt hunt;
    std::unique_ptr<AIController> controller;
};

struct BearingRow {
    float degreesRight, speed, steering, throttle;
    bool shoots, handBrakes;
};

TEST_F(AIControllerTest, SteersTowardsTheTargetShootsAtWhatIsAheadAndHandBrakesInSharpTurnsAtSpeed)
{
    const BearingRow rows[] = {{1, 0, 0.30389f, 1 - 1.0f / 360, true, false},
        {-19, 0, -0.37389f, 1 - 19.0f / 360, true, false}, {21, 0, 0.38167f, 1 - 21.0f / 360, false, false},
        {-59, 0, -0.52944f, 1 - 59.0f / 360, false, false}, {-61, 0, -0.53722f, 1, false, false},
        {89, 20, 0.64611f, 1, false, false}, {91, 7.9f, 0.65389f, 1, false, false},
        {-91, 8.1f, -0.65389f, 1, false, true}, {91, -20, 0.65389f, 1, false, false},
        {-170, 20, -0.96111f, 1, false, true}};
    own.position = {30, 12, -80};
    own.attitude = glm::rotate(glm::mat4(1.0f), glm::radians(100.0f), glm::vec3(0, 1, 0));
    for (const BearingRow& row : rows) {
        SCOPED_TRACE(row.degreesRight);
        own.speed = row.speed;
        preyAt(row.degreesRight, 40);
        prey.position.y = own.position.y + 25; // how high it stands does not matter
        lookAfresh();
        EXPECT_NEAR(steering(), row.steering, 1e-4f);
        EXPECT_NEAR(throttle(), row.throttle, 1e-4f);
        EXPECT_EQ(shoots(), row.shoots);
        EXPECT_EQ(handBrakes(), row.handBrakes);
        for (const int axis : {-1, 1, 3, 4}) EXPECT_EQ(controller->getAxis(axis), 0) << axis;
        for (const int button : {-1, 0, 1, 2, 3, 6, 7}) EXPECT_FALSE(controller->isPressed(button)) << button;
    }
}

TEST_F(AIControllerTest, PointBlankItShootsInAnyDirection)
{
    for (const float away : {1.9f, 2.1f}) {
        preyAt(150, away);
        lookAfresh();
        EXPECT_EQ(shoots(), away < 2);
    }
    preyAt(150, 1.9f);
    prey.position.y += 1.9f; // the distance, unlike the angle, counts height
    lookAfresh();
    EXPECT_FALSE(shoots());
}

TEST_F(AIControllerTest, ATargetWithoutADirectionIsNoTrouble)
{
    for (const glm::vec3& position :
        {glm::vec3(0, 30, 0), glm::vec3(0), glm::vec3(0, 0, -40)}) { // above, in the same place, right behind
        prey.position = position;
        lookAfresh();
        EXPECT_EQ(steering(), 0) << position.y;
        EXPECT_TRUE(std::isfinite(throttle())) << position.y;
    }
    own.attitude = glm::rotate(glm::mat4(1.0f), glm::radians(90.0f), glm::vec3(1, 0, 0)); // on its nose
    preyAt(30, 40);
    lookAfresh();
    EXPECT_TRUE(std::isfinite(steering()) && std::isfinite(throttle()));
}

TEST_F(AIControllerTest, OnlyATargetAheadRenewsItsPatience)
{
    preyAt(19, 40);
    nextFrame(); // found, and seen
    controller->update();
    EXPECT_NE(steering(), 0);
    EXPECT_EQ(hunt.searches, 1);

    preyAt(21, 40);
    nextFrame();
    nextFrame(); // found again, but last seen two frames ago
    ASSERT_NE(steering(), 0);
    FakePilot other;
    other.position = {0, 0, 30};
    hunt.prey = &other;
    controller->update();
    EXPECT_EQ(hunt.lastExcluded, &prey) << "another one is wanted";
    EXPECT_TRUE(shoots()) << "the other one is straight ahead";
}

TEST_F(AIControllerTest, ATargetThatDiedIsDroppedAndExcludedForThatUpdateOnly)
{
    preyAt(0, 40);
    lookAfresh();
    ASSERT_TRUE(shoots());

    ++prey.deaths;
    controller->update();
    EXPECT_EQ(hunt.lastExcluded, &prey);
    for (int axis = 0; axis < 4; ++axis) EXPECT_EQ(controller->getAxis(axis), 0) << axis;
    for (int button = 0; button < 7; ++button) EXPECT_FALSE(controller->isPressed(button)) << button;

    controller->update();
    EXPECT_EQ(hunt.lastExcluded, nullptr);
    EXPECT_TRUE(shoots()) << "found again, with its new death count";
    const int searches = hunt.searches;
    controller->update();
    EXPECT_EQ(hunt.searches, searches);
}

} // namespace
