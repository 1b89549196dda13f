#include "physics/CollisionGroups.h"
#include "support/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

#include <set>
#include <utility>

using physx::PxFilterData;
using physx::PxFilterFlag;
using physx::PxFilterFlags;
using physx::PxPairFlag;
using physx::PxPairFlags;

namespace {

struct Verdict {
    PxFilterFlags filter;
    PxPairFlags pair;
};

Verdict judge(const PxFilterData& a, const PxFilterData& b, physx::PxFilterObjectAttributes attributesA = 0)
{
    Verdict verdict;
    verdict.filter = filterCollisions(attributesA, a, 0, b, verdict.pair, nullptr, 0);
    return verdict;
}

/// Remembers which pairs of actors began to touch.
class TouchLog : public physx::PxSimulationEventCallback {
public:
    void onContact(const physx::PxContactPairHeader& header, const physx::PxContactPair* pairs, physx::PxU32 count) override
    {
        for (physx::PxU32 i = 0; i < count; ++i) {
            if (pairs[i].events & PxPairFlag::eNOTIFY_TOUCH_FOUND) touches.emplace(header.actors[0], header.actors[1]);
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

TEST(CollisionFilter, SuppressesOnlyPairsOfWhichNeitherListsTheOther)
{
    const CollisionGroup groups[] = {kGroundGroup, kWheelGroup, kChassisGroup, kObstacleGroup};
    enum Outcome { kPass, kTouch }; // suppressed; resolved and reported
    const Outcome expected[4][4] = {
        // with: ground, wheel, chassis, obstacle
        {kPass, kPass, kTouch, kTouch},
        {kPass, kTouch, kTouch, kTouch},
        {kTouch, kTouch, kTouch, kTouch},
        {kTouch, kTouch, kTouch, kTouch},
    };
    for (int a = 0; a < 4; ++a) {
        for (int b = 0; b < 4; ++b) {
            SCOPED_TRACE(testing::Message() << "groups " << groups[a] << " and " << groups[b]);
            const Verdict verdict = judge(simulationFilter(groups[a]), simulationFilter(groups[b]));
            if (expected[a][b] == kPass) {
                EXPECT_EQ(verdict.filter, PxFilterFlags(PxFilterFlag::eSUPPRESS));
            } else {
                EXPECT_EQ(verdict.filter, PxFilterFlags(PxFilterFlag::eDEFAULT));
                EXPECT_EQ(verdict.pair, PxPairFlag::eCONTACT_DEFAULT | PxPairFlag::eNOTIFY_TOUCH_FOUND);
            }
        }
    }
}

TEST(CollisionFilter, AddsWhatTheRecordsAskFor)
{
    const PxPairFlags resolved = PxPairFlag::eCONTACT_DEFAULT;
    struct Case {
        const char* name;
        PxFilterData a, b;
        PxPairFlags pair;
    };
    const Case cases[] = {
        {"no groups at all", {0, 0, 0, 0}, {0, 0, 0, 0}, resolved},
        {"only one lists the other", {4, 16, 0, 0}, {16, 0, 0, 0}, resolved},
        {"swept contacts asked for by one", {4, 4, 0, 0}, {4, 4, 0, 1},
            resolved | PxPairFlag::eNOTIFY_TOUCH_FOUND | PxPairFlag::eDETECT_CCD_CONTACT},
        {"other bits of word3", {4, 4, 0, 2}, {4, 4, 0, 0xFFFF0000}, resolved | PxPairFlag::eNOTIFY_TOUCH_FOUND},
        {"extra flags of both", {4, 4, PxPairFlag::eNOTIFY_TOUCH_LOST, 0}, {4, 4, PxPairFlag::eNOTIFY_TOUCH_PERSISTS, 0},
            resolved | PxPairFlag::eNOTIFY_TOUCH_FOUND | PxPairFlag::eNOTIFY_TOUCH_LOST | PxPairFlag::eNOTIFY_TOUCH_PERSISTS},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(judge(row.a, row.b).filter, PxFilterFlags(PxFilterFlag::eDEFAULT)) << row.name;
        EXPECT_EQ(judge(row.a, row.b).pair, row.pair) << row.name;
        EXPECT_EQ(judge(row.b, row.a).pair, row.pair) << row.name << ", exchanged";
    }
}

TEST(CollisionFilter, TriggersComeBeforeAnyGroup)
{
    const Verdict verdict = judge({1, 0, 0, 0}, {2, 0, 0, 0}, physx::PxFilterObjectFlag::eTRIGGER);
    EXPECT_EQ(verdict.filter, PxFilterFlags(PxFilterFlag::eDEFAULT));
    EXPECT_EQ(verdict.pair, PxPairFlags(PxPairFlag::eTRIGGER_DEFAULT));
}

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
