#include "testing/Near.h"
#include "testing/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

namespace {

glm::vec3 toGlm(const physx::PxVec3& v)
{
    return {v.x, v.y, v.z};
}

} // namespace

TEST(CarConstruction, PutsWheelsAndSpringsWhereTheyCarryTheCar)
{
    WorldFixture world;
    const physx::PxVehicleDrive4W& car = world.manager.createVehicle()->getVehicle();
    const physx::PxVehicleWheelsSimData& wheels = car.mWheelsSimData;
    for (physx::PxU32 i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        const bool front = i < 2;
        EXPECT_NEAR(wheels.getSuspensionData(i).mSprungMass, front ? 432.9507f : 317.0493f, 1e-3f);
        const glm::vec3 centre(i % 2 ? 0.9193479f : -0.9193479f, -0.4778746f,
            front ? 1.26114f : -1.76114f); // from the centre of mass
        const glm::vec3 force(centre.x, -0.3f, centre.z);
        EXPECT_TRUE(isNear(toGlm(wheels.getWheelCentreOffset(i)), centre, 1e-5f));
        EXPECT_TRUE(isNear(toGlm(wheels.getSuspForceAppPointOffset(i)), force, 1e-5f));
        EXPECT_TRUE(isNear(toGlm(wheels.getTireForceAppPointOffset(i)), force, 1e-5f));
    }

    // The chassis is a box of half extents 1, raised by 0.2; the axis of a wheel is x.
    physx::PxShape* shapes[16] = {};
    ASSERT_EQ(car.getRigidDynamicActor()->getShapes(shapes, 16), 5u);
    const physx::PxBounds3 chassis = shapes[4]->getGeometry().convexMesh().convexMesh->getLocalBounds();
    EXPECT_TRUE(isNear(toGlm(chassis.minimum), glm::vec3(-1, -0.8f, -1), 0.02f));
    EXPECT_TRUE(isNear(toGlm(chassis.maximum), glm::vec3(1, 1.2f, 1), 0.02f));
    const physx::PxBounds3 wheel = shapes[0]->getGeometry().convexMesh().convexMesh->getLocalBounds();
    EXPECT_TRUE(isNear(toGlm(wheel.getExtents()), glm::vec3(0.175f, 0.45f, 0.45f), 0.01f));
}

TEST(CarConstructionDeathTest, EndsAtSixteenCars)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // the physics library has threads of its own
    WorldFixture world;
    for (int i = 0; i < 16; ++i) world.manager.createVehicle();
    EXPECT_DEATH(world.manager.createVehicle(), "mNumVehicles<MAX_NUM_4W_VEHICLES");
}
