#include "support/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace {

/// Remembers which pairs of actors began to touch.
class TouchLog : public physx::PxSimulationEventCallback {
public:
    void onContact(const physx::PxContactPairHeader& header, const physx::PxContactPair* pairs, physx::PxU32 count) override
    {
        for (physx::PxU32 i = 0; i < count; ++i) {
            if (pairs[i].events & physx::PxPairFlag::eNOTIFY_TOUCH_FOUND) touches.emplace(header.actors[0], header.actors[1]);
        }
    }
    void onConstraintBreak(physx::PxConstraintInfo*, physx::PxU32) override {}
    void onWake(physx::PxActor**, physx::PxU32) override {}
    void onSleep(physx::PxActor**, physx::PxU32) override {}
    void onTrigger(physx::PxTriggerPair*, physx::PxU32) override {}
    void onAdvance(const physx::PxRigidBody* const*, const physx::PxTransform*, physx::PxU32) override {}

    bool reported(const physx::PxActor* a, const physx::PxActor* b) const
    {
        return touches.count({a, b}) != 0 || touches.count({b, a}) != 0;
    }

private:
    std::set<std::pair<const physx::PxActor*, const physx::PxActor*>> touches;
};

} // namespace

TEST(Contacts, OfABallWithACarAndWithTheGroundAreReported)
{
    TouchLog log;
    WorldFixture world(&log);
    const Terrain& ground = world.flatGround();
    const VehicleHandle& car = world.carAt({0, 1.2f, 0});
    const PhysicNode& thrown = world.ballAt({0, 1.6f, 8}, {0, 0, -40});
    const PhysicNode& dropped = world.ballAt({40, 3, 40});
    EXPECT_TRUE(world.runUntil(60, [&] { return log.reported(thrown.actor, car.getActor()); }));
    EXPECT_TRUE(world.runUntil(120, [&] { return log.reported(dropped.actor, ground.getActor()); }));
    EXPECT_FALSE(log.reported(dropped.actor, car.getActor()));
}

TEST(Contacts, OfACarStandingOnItsWheelsWithTheGroundAreNone)
{
    TouchLog log;
    WorldFixture world(&log);
    const Terrain& ground = world.flatGround();
    const VehicleHandle& car = world.carAt({0, 1.2f, 0});
    world.runSeconds(2);
    EXPECT_FALSE(log.reported(car.getActor(), ground.getActor())) << "a wheel touched the ground, or the chassis sank in";

    // On its roof the chassis does touch.
    car.getActor()->setGlobalPose({physx::PxVec3(0, 2, 0), physx::PxQuat(physx::PxPi, physx::PxVec3(0, 0, 1))});
    EXPECT_TRUE(world.runUntil(120, [&] { return log.reported(car.getActor(), ground.getActor()); }));
}

TEST(Contacts, OfTwoCarsAreReportedAndNeitherDrivesThroughTheOther)
{
    TouchLog log;
    WorldFixture world(&log);
    world.flatGround();
    const VehicleHandle& rear = world.carAt({0, 1.2f, 0});
    const VehicleHandle& front = world.carAt({0, 1.2f, 6});
    rear.getActor()->setLinearVelocity(physx::PxVec3(0, 0, 30));
    EXPECT_TRUE(world.runUntil(60, [&] { return log.reported(rear.getActor(), front.getActor()); }));
    world.runSeconds(0.5f);
    EXPECT_LT(WorldFixture::positionOf(rear).z, WorldFixture::positionOf(front).z - 2);
}
