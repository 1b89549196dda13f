#include "physics/CollisionGroups.h"
#include "scene/SceneGraph.h"
#include "testing/Near.h"
#include "testing/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

#include <iterator>
#include <string>

namespace {

using physx::PxPairFlag;

TEST(FixedStep, IsTakenOnceEnoughTimeIsOwedAndOnceACall)
{
    WorldFixture world;
    PhysicNode& ball = world.ballAt({0, 100, 0});
    ball.setLinearVelocity({60, 0, 0});
    const auto& body = *ball.actor->is<physx::PxRigidDynamic>();
    EXPECT_NEAR(body.getMass(), 41.888f, 0.01f) << "a sphere of radius 1 and density 10";
    EXPECT_FALSE(world.manager.step(0.01f));
    EXPECT_TRUE(world.manager.step(0.01f));
    EXPECT_NEAR(world.manager.getAccumulator(), 0.00333f, 1e-5f);
    EXPECT_NEAR(body.getLinearVelocity().y, -29.43f / 60, 1e-3f) << "three times as hard as on earth";

    EXPECT_TRUE(world.manager.step(1.0f));
    EXPECT_NEAR(body.getGlobalPose().p.x, 2.0f, 1e-3f) << "a second's debt must move bodies by one step";
    EXPECT_TRUE(world.manager.step(0.0001f)) << "the debt must be kept";
}

TEST(Collisions, HappenWhereOneGroupListsTheOtherAndAreReportedWhereBothDo)
{
    const CollisionGroup groups[] = {kGroundGroup, kWheelGroup, kChassisGroup, kObstacleGroup, kDrivableObstacleGroup};
    const char* const meetings[] = {
        // in the same order; -: none, C: a collision, R: a reported one
        "--RRC",
        "-RRR-",
        "RRRRC",
        "RRRRC",
        "C-CC-",
    };
    for (std::size_t i = 0; i < std::size(groups); ++i) {
        std::string found;
        for (const CollisionGroup other : groups) {
            physx::PxPairFlags flags;
            filterCollisions(0, simulationFilter(groups[i]), 0, simulationFilter(other), flags, nullptr, 0);
            const bool isReported = flags.isSet(PxPairFlag::eNOTIFY_TOUCH_FOUND);
            found += !flags.isSet(PxPairFlag::eSOLVE_CONTACT) ? '-' : isReported ? 'R' : 'C';
        }
        EXPECT_EQ(found, meetings[i]) << "group " << groups[i];
    }
}

TEST(PhysicNode, OfAWheelTurnsWithTheCarAndWithTheWheelAndGoesWithThem)
{
    WorldFixture world;
    SceneGraph graph;
    VehicleHandle& car = world.carAt({0, 0, 0});
    PhysicNode* wheel = car.createWheelNode(1);
    graph.getRoot()->addChild(wheel);

    // A quarter turn to the left seen from above, and the wheel itself another quarter about its axis.
    const float quarter = physx::PxHalfPi;
    car.getActor()->setGlobalPose({physx::PxVec3(10, 20, 30), physx::PxQuat(quarter, physx::PxVec3(0, 1, 0))});
    wheel->shape->setLocalPose({physx::PxVec3(1, -2, 3), physx::PxQuat(quarter, physx::PxVec3(1, 0, 0))});
    graph.update();
    const glm::mat4 expected({0, 0, -1, 0}, {1, 0, 0, 0}, {0, -1, 0, 0}, {13, 18, 29, 1}); // +z is now +x, +x is -z
    EXPECT_TRUE(isNear(wheel->getWorldTransform(), expected));

    wheel->destroy();
    EXPECT_EQ(world.manager.getScene().getNbActors(physx::PxActorTypeFlag::eRIGID_DYNAMIC), 0u) << "its body is left";
}

} // namespace
