#include "testing/Near.h"
#include "testing/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

namespace {

using physx::PxU32;

glm::vec3 toGlm(const physx::PxVec3& v)
{
    return {v.x, v.y, v.z};
}

/// A car standing on flat ground, facing +z, and its driver.
class Driving : public WorldFixture {
public:
    /// Hold those controls for that long.
    void drive(float seconds, const DriverInput& input)
    {
        run(seconds, [&] { controls.apply(input, car); });
    }

    glm::vec3 position() const { return toGlm(car.getActor()->getGlobalPose().p); }

    Terrain& terrain = ground();
    VehicleHandle& car = carAt({0, 1.084f, 0});
    DrivingControls controls;
};

TEST(Cars, TakeTheseWays)
{
    // As measured. A wrong figure, sign or order anywhere in the car moves one of the ends by more than the tolerance.
    constexpr float kTolerance = 0.05f;
    const struct {
        const char* what;
        float runUp; // seconds
        DriverInput first;
        float seconds;
        DriverInput then;
        glm::vec3 end; // x, z and speed; the driver's left is +x
    } rows[] = {
        {"starting", 0, {}, 0.5f, {.accel = 1}, {0, 2.995f, 6.545f}},
        {"shifting up", 1, {.accel = 1}, 2, {.accel = 1}, {0, 107.915f, 31.204f}},
        {"turning right from rest", 0, {}, 0.7f, {.accel = 1, .steer = 1}, {-4.430f, 3.089f, 8.548f}},
        {"turning left when fast", 1, {.accel = 1}, 0.5f, {.accel = 1, .steer = -1}, {8.743f, 20.876f, 13.051f}},
        {"turning right when faster", 4, {.accel = 1}, 0.5f, {.accel = 1, .steer = 1}, {-11.453f, 206.529f, 19.027f}},
        {"straightening up", 1, {.accel = 1, .steer = -1}, 0.3f, {.accel = 1}, {13.338f, -7.408f, 15.624f}},
        {"coasting", 1, {.accel = 1}, 0.5f, {}, {0, 25.817f, 7.882f}},
        {"braking", 2, {.accel = 1}, 0.2f, {.brake = -1}, {0, 61.467f, 21.226f}},
        {"braking by hand", 2, {.accel = 1}, 0.4f, {.handBrake = true}, {0, 69.195f, 17.267f}},
        {"braking, then reversing", 0.5f, {.accel = 1}, 2, {.brake = -1}, {0, -25.829f, -16.288f}},
        {"reversing, then driving on", 1, {.brake = -1}, 1, {.accel = 1}, {0, -14.399f, 6.051f}},
        {"waking up", 20, {}, 1, {.accel = 1}, {0, 13.537f, 13.987f}},
    };
    for (const auto& row : rows) {
        Driving world;
        world.drive(1, {});
        world.drive(row.runUp, row.first);
        world.drive(row.seconds, row.then);
        const glm::vec3 end(world.position().x, world.position().z, world.car.computeForwardSpeed());
        EXPECT_TRUE(isNear(end, row.end, kTolerance)) << row.what;
    }
}

TEST(Cars, ComeToRestOnTheirWheelsWhenDropped)
{
    Driving world;
    world.car.placeAt({0, 5, 0});
    world.run(3);
    EXPECT_NEAR(world.position().y, 1.084f, 0.002f);
    EXPECT_GT(world.car.getActor()->getGlobalPose().q.getBasisVector1().y, 0.999f);

    for (PxU32 i = 0; i < 4; ++i) {
        PhysicNode* const wheel = world.car.createWheelNode(i);
        const glm::vec3 centre(i % 2 ? 0.919f : -0.919f, -0.64f, i < 2 ? 1.511f : -1.511f);
        EXPECT_TRUE(isNear(toGlm(wheel->shape->getLocalPose().p), centre, 0.05f)) << "wheel " << i;
        EXPECT_NEAR(world.car.getVehicle().mWheelsSimData.getWheelData(i).mWidth, 0.35f, 1e-4f);
    }
    PhysicNode* const chassis = world.car.createWheelNode(4);
    const physx::PxBounds3 box = chassis->shape->getGeometry().convexMesh().convexMesh->getLocalBounds();
    EXPECT_TRUE(isNear(toGlm(box.minimum), glm::vec3(-1, -0.8f, -1), 0.02f));
    EXPECT_TRUE(isNear(toGlm(box.maximum), glm::vec3(1, 1.2f, 1), 0.02f));
}

TEST(Cars, ChangeDirectionByFirmControlsAtRestOnly)
{
    using Gears = physx::PxVehicleGearsData;
    Driving world;
    const struct {
        float speed;
        DriverInput input;
        PxU32 gear;
    } rows[] = {
        {0, {.brake = -0.1f}, Gears::eFIRST},
        {0, {.brake = -0.11f}, Gears::eREVERSE},
        {-1, {.accel = 0.1f}, Gears::eREVERSE},
        {-1, {.accel = 0.11f}, Gears::eFIRST},
        {0, {.accel = 1, .brake = -1}, Gears::eFIRST},
    };
    for (const auto& row : rows) {
        world.car.getActor()->setLinearVelocity(physx::PxVec3(0, 0, row.speed));
        world.controls.apply(row.input, world.car);
        EXPECT_EQ(world.car.getVehicle().mDriveDynData.getCurrentGear(), row.gear) << "row " << &row - rows;
    }
}

TEST(CarsAndBalls, AreSolidButNotToBeDrivenOn)
{
    Driving world;
    const PhysicNode& ball = world.ballAt({20, 3, 0});
    world.car.getActor()->setGlobalPose({physx::PxVec3(0, 2, 0), physx::PxQuat(physx::PxPi, physx::PxVec3(0, 0, 1))});
    world.run(1);
    EXPECT_NEAR(world.position().y, 1.2f, 0.1f) << "on its roof";
    EXPECT_NEAR(ball.actor->getGlobalPose().p.y, 1, 0.05f);
    physx::PxShape* shape = nullptr;
    ball.actor->getShapes(&shape, 1);
    EXPECT_EQ(shape->getQueryFilterData().word3 & 0xFFFF0000, 0u) << "the wheels' rays take it for ground";
}

TEST(CarsDeathTest, AreSixteenAtTheMost)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // the physics library has threads of its own
    WorldFixture world;
    for (int i = 0; i < 16; ++i) world.manager.createVehicle();
    EXPECT_DEATH(world.manager.createVehicle(), "mNumVehicles<MAX_NUM_4W_VEHICLES");
}

} // namespace
