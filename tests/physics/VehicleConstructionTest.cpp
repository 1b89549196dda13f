#include "physics/CollisionGroups.h"
#include "physics/SampleVehicle_VehicleManager.h"
#include "support/Near.h"
#include "support/WorldFixture.h"

#include <PxPhysicsAPI.h>

#include <cstdlib>
#include <numbers>

namespace {

constexpr float kPi = std::numbers::pi_v<float>;

glm::vec3 toGlm(const physx::PxVec3& v)
{
    return {v.x, v.y, v.z};
}

} // namespace

TEST(CarConstruction, GivesEachWheelItsFigures)
{
    WorldFixture world;
    const physx::PxVehicleWheelsSimData& wheels = world.manager.createVehicle()->getVehicle().mWheelsSimData;
    struct Row {
        float handBrake, steer, sprungMass;
        physx::PxU32 tire;
        glm::vec3 centre; // from the centre of mass
    };
    const Row rows[] = {
        {0, kPi * 0.3333f, 432.9507f, 1, {-0.9193479f, -0.4778746f, 1.26114f}},
        {0, kPi * 0.3333f, 432.9507f, 1, {0.9193479f, -0.4778746f, 1.26114f}},
        {4000, 0, 317.0493f, 0, {-0.9193479f, -0.4778746f, -1.76114f}},
        {4000, 0, 317.0493f, 0, {0.9193479f, -0.4778746f, -1.76114f}},
    };
    for (physx::PxU32 i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        const physx::PxVehicleWheelData& wheel = wheels.getWheelData(i);
        EXPECT_NEAR(wheel.mRadius, 0.43875f, 1e-5f);
        EXPECT_NEAR(wheel.mWidth, 0.35f, 1e-5f);
        EXPECT_EQ(wheel.mMass, 80);
        EXPECT_NEAR(wheel.mMOI, 7.70006f, 1e-4f);
        EXPECT_EQ(wheel.mMaxHandBrakeTorque, rows[i].handBrake);
        EXPECT_NEAR(wheel.mMaxSteer, rows[i].steer, 1e-5f);
        EXPECT_EQ(wheels.getTireData(i).mType, rows[i].tire);

        const physx::PxVehicleSuspensionData& suspension = wheels.getSuspensionData(i);
        EXPECT_NEAR(suspension.mSprungMass, rows[i].sprungMass, 1e-3f);
        EXPECT_EQ(suspension.mSpringStrength, 35000);
        EXPECT_EQ(suspension.mSpringDamperRate, 4500);
        EXPECT_FLOAT_EQ(suspension.mMaxCompression, 0.3f);
        EXPECT_FLOAT_EQ(suspension.mMaxDroop, 0.1f);

        const glm::vec3 force(rows[i].centre.x, -0.3f, rows[i].centre.z);
        EXPECT_TRUE(isNear(toGlm(wheels.getWheelCentreOffset(i)), rows[i].centre, 1e-5f));
        EXPECT_TRUE(isNear(toGlm(wheels.getSuspForceAppPointOffset(i)), force, 1e-5f));
        EXPECT_TRUE(isNear(toGlm(wheels.getTireForceAppPointOffset(i)), force, 1e-5f));
        EXPECT_TRUE(isNear(toGlm(wheels.getSuspTravelDirection(i)), glm::vec3(0, -1, 0)));
    }
}

TEST(CarConstruction, GivesTheDriveTrainItsFigures)
{
    WorldFixture world;
    const physx::PxVehicleDriveSimData4W& drive = world.manager.createVehicle()->getVehicle().mDriveSimData;
    EXPECT_EQ(drive.getDiffData().mType, physx::PxVehicleDifferential4WData::eDIFF_TYPE_LS_4WD);
    EXPECT_EQ(drive.getEngineData().mPeakTorque, 500);
    EXPECT_EQ(drive.getEngineData().mMaxOmega, 600);
    EXPECT_EQ(drive.getGearsData().mSwitchTime, 0.5f);
    EXPECT_EQ(drive.getClutchData().mStrength, 10);
    EXPECT_NEAR(drive.getAckermannGeometryData().mFrontWidth, 1.8386958f, 1e-5f);
    EXPECT_NEAR(drive.getAckermannGeometryData().mRearWidth, 1.8386958f, 1e-5f);
    EXPECT_NEAR(drive.getAckermannGeometryData().mAxleSeparation, 3.02228f, 1e-5f);
    EXPECT_EQ(drive.getAckermannGeometryData().mAccuracy, 1);
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
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(shapes[i]->getQueryFilterData().word3, 0x0000FFFFu) << "a wheel could stand on it";
        EXPECT_EQ(shapes[i]->getSimulationFilterData().word0, static_cast<physx::PxU32>(i < 4 ? kWheelGroup : kChassisGroup));
    }

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
