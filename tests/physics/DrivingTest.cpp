#include "physics/SampleVehicle_VehicleManager.h"
#include "testing/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using Gears = physx::PxVehicleGearsData;

constexpr float kMaxSteer = std::numbers::pi_v<float> * 0.3333f; // radians

/// A car standing on flat ground, and its driver.
class DrivingTest : public testing::Test {
protected:
    DrivingTest()
    {
        world.flatGround();
        world.runSeconds(1);
    }

    /// Holds those controls for that long.
    void drive(float seconds, const DriverInput& input)
    {
        world.runSeconds(seconds, [&] { controls.apply(input, car); });
    }

    /// Holds them until then, for ten seconds at the most.
    bool runUntil(const DriverInput& input, const std::function<bool()>& predicate)
    {
        return world.runUntil(1200, predicate, [&] { controls.apply(input, car); });
    }

    /// One decision of the driver, without a pass.
    void decide(const DriverInput& input) { controls.apply(input, car); }

    void updateVehicles() { world.manager.updateVehicles(WorldFixture::kGameDelta, physx::PxVec3(0, -9.81f, 0)); }
    float speed() const { return car.computeForwardSpeed(); }
    physx::PxU32 gear() const { return car.getVehicle().mDriveDynData.getCurrentGear(); }
    glm::vec3 position() const { return WorldFixture::positionOf(car); }
    const physx::PxWheelQueryResult& wheel(physx::PxU32 i) const
    {
        return world.manager.getVehicleManager().getWheelQuery(0, i);
    }
    void setSpeed(float metresPerSecond) { car.getActor()->setLinearVelocity(physx::PxVec3(0, 0, metresPerSecond)); }

    WorldFixture world;
    VehicleHandle& car = world.carAt({0, 1.2f, 0});
    DrivingControls controls;

    const DriverInput throttle{1, 0, 0, false};
    const DriverInput brake{0, -1, 0, false};
    const DriverInput nothing{};
};

} // namespace

TEST_F(DrivingTest, ADroppedCarComesToRestOnItsWheels)
{
    car.placeAt({0, 5, 0});
    world.runSeconds(3);
    EXPECT_NEAR(position().y, 1.08f, 0.02f);
    EXPECT_NEAR(car.getActor()->getLinearVelocity().magnitude(), 0, 0.02f);
    EXPECT_GT(car.getActor()->getGlobalPose().q.getBasisVector1().y, 0.999f);
}

TEST_F(DrivingTest, FullThrottleTakesItPastTenMetresPerSecondInTwoSecondsEvenAfterALongRest)
{
    world.runSeconds(20);
    drive(2, throttle);
    EXPECT_GT(speed(), 10);
    EXPECT_GT(position().z, 10) << "the front of a car is +z";
    EXPECT_NEAR(position().x, 0, 0.5f);
    EXPECT_TRUE(runUntil(throttle, [&] { return gear() > Gears::eFIRST; })) << "shifts up by itself";
}

TEST_F(DrivingTest, SteersToTheDriversSide)
{
    // The driver looks along +z with +y up: the right hand points to -x.
    for (const float steer : {1.0f, -1.0f}) {
        car.placeAt({0, 1.1f, 0});
        drive(1, throttle);
        drive(0.5f, {1, 0, steer, false});
        EXPECT_LT(WorldFixture::forwardOf(car).x * steer, -0.1f) << "steer " << steer;
        EXPECT_LT(position().x * steer, 0) << "steer " << steer;
    }
}

TEST_F(DrivingTest, TheBrakeControlAtRestDrivesBackwardsUntilTheThrottleControlReturnsToFirstGear)
{
    decide(brake);
    EXPECT_TRUE(controls.isReversing());
    EXPECT_EQ(gear(), Gears::eREVERSE);
    EXPECT_EQ(car.getRawInputs().getAnalogBrake(), 1) << "controls change over one pass later";
    decide(brake);
    EXPECT_EQ(car.getRawInputs().getAnalogAccel(), 1);
    EXPECT_EQ(car.getRawInputs().getAnalogBrake(), 0);
    drive(2, brake);
    EXPECT_LT(speed(), -3);
    EXPECT_LT(position().z, -2);

    decide(throttle);
    EXPECT_FALSE(controls.isReversing());
    EXPECT_EQ(gear(), Gears::eFIRST);
    drive(3, throttle);
    EXPECT_GT(speed(), 3);
}

TEST_F(DrivingTest, TheBrakeControlAtSpeedBrakesBeforeItReverses)
{
    drive(2, throttle);
    const float before = speed();
    drive(0.2f, brake);
    EXPECT_FALSE(controls.isReversing());
    EXPECT_LT(speed(), before - 1);
    EXPECT_GT(speed(), 0);
    EXPECT_TRUE(runUntil(brake, [&] { return controls.isReversing(); }));
    EXPECT_LT(speed(), 0.001f);
}

TEST_F(DrivingTest, FaintControlsDoNotChangeDirection)
{
    struct Row {
        float speed;
        DriverInput input;
        bool reverses;
    };
    for (const Row& row :
        {Row{0, {0, -0.1f, 0, false}, false}, Row{0, {0, -0.11f, 0, false}, true}, Row{-1, {0.1f, 0, 0, false}, true},
            Row{-1, {0.11f, 0, 0, false}, false}, Row{0, {1, -1, 0, false}, false}}) {
        setSpeed(row.speed);
        decide(row.input);
        EXPECT_EQ(controls.isReversing(), row.reverses) << row.input.accel << ", " << row.input.brake;
        EXPECT_EQ(gear(), row.reverses ? Gears::eREVERSE : Gears::eFIRST);
    }
}

TEST_F(DrivingTest, TheHandBrakeSlowsOnlyTheRearWheels)
{
    drive(2, throttle);
    drive(0.4f, {0, 0, 0, true});
    const physx::PxVehicleWheelsDynData& wheels = car.getVehicle().mWheelsDynData;
    const float rolling = speed() / 0.43875f; // radians per second of a wheel that does not slip
    ASSERT_GT(rolling, 5);
    for (const physx::PxU32 front : {0u, 1u}) EXPECT_GT(wheels.getWheelRotationSpeed(front), 0.7f * rolling);
    for (const physx::PxU32 rear : {2u, 3u}) EXPECT_LT(wheels.getWheelRotationSpeed(rear), 0.5f * rolling);
}

TEST_F(DrivingTest, SteersLessTheFasterItGoes)
{
    for (const auto& [metresPerSecond, factor] : {std::pair{0.0f, 0.9f}, std::pair{5.0f, 0.7f}, std::pair{17.5f, 0.6f},
             std::pair{75.0f, 0.4f}, std::pair{150.0f, 0.3f}}) {
        SCOPED_TRACE(metresPerSecond);
        // The smoothing alone: a longer drive would change the speed. Held until the input has risen all the way.
        for (int i = 0; i < 60; ++i) {
            car.placeAt({0, 1.08f, 0});
            setSpeed(metresPerSecond);
            decide({0, 0, -1, false});
            updateVehicles();
        }
        EXPECT_NEAR(std::max(std::abs(wheel(0).steerAngle), std::abs(wheel(1).steerAngle)), factor * kMaxSteer, 0.01f)
            << "the inner wheel";
        EXPECT_NEAR(wheel(2).steerAngle, 0, 1e-4f);
    }
}

TEST_F(DrivingTest, ControlsRiseAndFallGradually)
{
    const physx::PxVehicleDriveDynData& drive = car.getVehicle().mDriveDynData;
    const auto accel = [&] { return drive.getAnalogInput(physx::PxVehicleDrive4WControl::eANALOG_INPUT_ACCEL); };
    decide(throttle);
    world.pass();
    EXPECT_NEAR(accel(), 6.0f * WorldFixture::kGameDelta, 1e-4f);
    for (int i = 0; i < 10; ++i) world.pass();
    EXPECT_NEAR(accel(), 1, 1e-4f);
    decide(nothing);
    world.pass();
    EXPECT_NEAR(accel(), 1 - 10.0f * WorldFixture::kGameDelta, 1e-4f);
}

TEST_F(DrivingTest, WheelsStandOnTheGroundButNotOnCarsOrBalls)
{
    world.pass();
    EXPECT_FALSE(wheel(0).isInAir);

    VehicleHandle& other = world.carAt({0, 1.08f, 1.5f});
    const PhysicNode& ball = world.ballAt({-0.92f, 20, 1.5f});
    struct Place {
        const char* what;
        float height; // of the car whose left front wheel is just above it
        physx::PxRigidActor* actor;
    };
    for (const Place& place : {Place{"a car's roof", 3.3f, other.getActor()}, Place{"a ball", 21.5f, ball.actor}}) {
        car.placeAt({0, place.height, 0});
        updateVehicles();
        EXPECT_TRUE(wheel(0).isInAir) << place.what;

        // The same place, were it drivable, does hold the wheel.
        physx::PxShape* shapes[5] = {};
        const physx::PxU32 count = place.actor->getShapes(shapes, 5);
        shapes[count - 1]->setQueryFilterData(physx::PxFilterData(0, 0, 0, 0xFFFF0000));
        updateVehicles();
        EXPECT_FALSE(wheel(0).isInAir) << place.what << " is out of the ray's reach: this test shows nothing";
    }
}

TEST_F(DrivingTest, CarsAreSolidToEachOtherAndTheirRoofsToTheGround)
{
    const VehicleHandle& front = world.carAt({0, 1.2f, 6});
    setSpeed(30);
    world.runSeconds(1);
    EXPECT_LT(position().z, WorldFixture::positionOf(front).z - 2) << "drove through the other";

    car.getActor()->setGlobalPose({physx::PxVec3(0, 2, 0), physx::PxQuat(physx::PxPi, physx::PxVec3(0, 0, 1))});
    world.runSeconds(1);
    EXPECT_GT(position().y, 0.5f) << "sank in";
}
