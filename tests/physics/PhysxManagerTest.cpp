#include "scene/SceneGraph.h"
#include "testing/Near.h"
#include "testing/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <glm/gtc/matrix_transform.hpp>
#include <gtest/gtest.h>

namespace {

physx::PxRigidDynamic& bodyOf(PhysicNode& node)
{
    return *node.actor->is<physx::PxRigidDynamic>();
}

} // namespace

TEST(FixedStep, IsTakenOnceEnoughTimeIsOwedAndOnceACall)
{
    WorldFixture world;
    PhysicNode& ball = world.ballAt({0, 100, 0}, {60, 0, 0});
    EXPECT_NEAR(bodyOf(ball).getMass(), 41.888f, 0.01f) << "a sphere of radius 1 and density 10";
    EXPECT_FALSE(world.manager.step(0.01f));
    EXPECT_TRUE(world.manager.step(0.01f));
    EXPECT_NEAR(world.manager.getAccumulator(), 0.00333f, 1e-5f);
    EXPECT_NEAR(bodyOf(ball).getLinearVelocity().y, -29.43f / 60, 1e-3f) << "three times as hard as on earth";

    EXPECT_TRUE(world.manager.step(1.0f));
    EXPECT_NEAR(ball.actor->getGlobalPose().p.x, 2.0f, 1e-3f) << "a second's debt must move bodies by one step";
    EXPECT_TRUE(world.manager.step(0.0001f)) << "the debt must be kept";
}

TEST(PhysicNode, OfAWheelTurnsWithTheCarAndWithTheWheel)
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

    const glm::mat4 pose = wheel->getWorldTransform();
    EXPECT_TRUE(isNear(glm::vec3(pose[3]), glm::vec3(13, 18, 29))); // +z has become +x, +x has become -z
    EXPECT_TRUE(isNear(glm::vec3(pose[0]), glm::vec3(0, 0, -1)));
    EXPECT_TRUE(isNear(glm::vec3(pose[1]), glm::vec3(1, 0, 0)));
    EXPECT_TRUE(isNear(glm::vec3(pose[2]), glm::vec3(0, -1, 0)));
}
