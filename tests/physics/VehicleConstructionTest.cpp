#include "physics/SampleVehicle_VehicleManager.h"
#include "support/Near.h"
#include "support/WorldFixture.h"

#include <PxPhysicsAPI.h>

#include <cstdlib>
#include <numbers>

namespace {

glm::vec3 toGlm(const physx::PxVec3& v)
{
    return {v.x, v.y, v.z};
}

} // namespace

/// What is computed from the car's measures: springs that carry its weight, the places of its wheels, front steering, rear hand brake.
TEST(CarConstruction, DerivesTheFiguresOfItsWheelsAndAxles)
{
    WorldFixture world;
    const physx::PxVehicleDrive4W& car = world.manager.createVehicle()->getVehicle();
    const physx::PxVehicleWheelsSimData& wheels = car.mWheelsSimData;
    for (physx::PxU32 i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        const bool front = i < 2;
        EXPECT_NEAR(wheels.getWheelData(i).mMOI, 7.70006f, 1e-4f);
        EXPECT_EQ(wheels.getWheelData(i).mMaxHandBrakeTorque, front ? 0 : 4000);
        EXPECT_NEAR(wheels.getWheelData(i).mMaxSteer, front ? std::numbers::pi_v<float> * 0.3333f : 0, 1e-5f);
        EXPECT_NEAR(wheels.getSuspensionData(i).mSprungMass, front ? 432.9507f : 317.0493f, 1e-3f);

        const glm::vec3 centre(i % 2 ? 0.9193479f : -0.9193479f, -0.4778746f, front ? 1.26114f : -1.76114f); // from the centre of mass
        const glm::vec3 force(centre.x, -0.3f, centre.z);
        EXPECT_TRUE(isNear(toGlm(wheels.getWheelCentreOffset(i)), centre, 1e-5f));
        EXPECT_TRUE(isNear(toGlm(wheels.getSuspForceAppPointOffset(i)), force, 1e-5f));
        EXPECT_TRUE(isNear(toGlm(wheels.getTireForceAppPointOffset(i)), force, 1e-5f));
    }
    const physx::PxVehicleAckermannGeometryData axles = car.mDriveSimData.getAckermannGeometryData();
    EXPECT_TRUE(isNear(glm::vec3(axles.mFrontWidth, axles.mRearWidth, axles.mAxleSeparation), {1.8386958f, 1.8386958f, 3.02228f}, 1e-5f));
}

TEST(CarConstruction, BuildsABodyOfFourWheelsAndAChassis)
{
    WorldFixture world;
    const physx::PxRigidDynamic& body = *world.manager.createVehicle()->getActor();
    EXPECT_EQ(body.getMass(), 1500);
    EXPECT_TRUE(isNear(toGlm(body.getMassSpaceInertiaTensor()), glm::vec3(3371.8037f, 2968.3728f, 1193.7377f), 1e-2f));
    EXPECT_TRUE(isNear(toGlm(body.getCMassLocalPose().p), glm::vec3(0, -0.27470276f, 0.25f)));

    physx::PxShape* shapes[16] = {};
    ASSERT_EQ(body.getShapes(shapes, 16), 5u);

    // The chassis is a box of half extents 1, raised by 0.2; the axis of a wheel is x.
    const physx::PxBounds3 chassis = shapes[4]->getGeometry().convexMesh().convexMesh->getLocalBounds();
    EXPECT_TRUE(isNear(toGlm(chassis.minimum), glm::vec3(-1, -0.8f, -1), 0.02f));
    EXPECT_TRUE(isNear(toGlm(chassis.maximum), glm::vec3(1, 1.2f, 1), 0.02f));
    const physx::PxBounds3 wheel = shapes[0]->getGeometry().convexMesh().convexMesh->getLocalBounds();
    EXPECT_TRUE(isNear(toGlm(wheel.getExtents()), glm::vec3(0.175f, 0.45f, 0.45f), 0.01f));
}

TEST(CarConstruction, StartsUprightInFirstGearAtARandomX)
{
    WorldFixture world;
    std::srand(1);
    const auto first = static_cast<float>(std::rand() % 10), second = static_cast<float>(std::rand() % 10);
    std::srand(1);
    for (const float x : {first, second}) {
        const VehicleHandle& car = *world.manager.createVehicle();
        EXPECT_TRUE(isNear(WorldFixture::positionOf(car), glm::vec3(x, 5, 0)));
        EXPECT_TRUE(car.getActor()->getGlobalPose().q.isIdentity());
        EXPECT_EQ(car.getVehicle().mDriveDynData.getCurrentGear(), physx::PxVehicleGearsData::eFIRST);
        EXPECT_TRUE(car.getVehicle().mDriveDynData.getUseAutoGears());
    }
}

TEST(CarConstructionDeathTest, EndsAtSixteenCars)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // the physics library has threads of its own
    WorldFixture world;
    world.flatGround();
    for (int i = 0; i < 16; ++i) world.carAt({-80.0f + 10.0f * static_cast<float>(i), 1.5f, 0});
    world.runSeconds(1);
    VehicleManager& cars = world.manager.getVehicleManager();
    ASSERT_EQ(cars.getNumVehicles(), 16u);
    for (physx::PxU32 i = 0; i < 16; ++i) EXPECT_NEAR(WorldFixture::positionOf(*cars.getHandle(i)).y, 1.08f, 0.05f) << "car " << i;
    EXPECT_DEATH(world.manager.createVehicle(), "mNumVehicles<MAX_NUM_4W_VEHICLES");
}
