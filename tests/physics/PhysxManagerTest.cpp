#include "scene/SceneGraph.h"
#include "support/Near.h"
#include "support/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <glm/gtc/matrix_transform.hpp>

namespace {

physx::PxRigidDynamic& bodyOf(PhysicNode& node)
{
    return *node.actor->is<physx::PxRigidDynamic>();
}

bool isInScene(const physx::PxActor& actor)
{
    return actor.getScene() != nullptr;
}

} // namespace

TEST(FixedStep, IsTakenOnceEnoughTimeIsOwed)
{
    WorldFixture world;
    EXPECT_FALSE(world.manager.step(0.01f));
    EXPECT_NEAR(world.manager.getAccumulator(), 0.01f, 1e-6f);
    EXPECT_TRUE(world.manager.step(0.01f));
    EXPECT_NEAR(world.manager.getAccumulator(), 0.00333f, 1e-5f);
}

TEST(FixedStep, IsTakenOnceACallHoweverMuchTimeIsOwed)
{
    WorldFixture world;
    PhysicNode& ball = world.ballAt({0, 100, 0}, {60, 0, 0});
    EXPECT_TRUE(world.manager.step(1.0f));
    EXPECT_NEAR(world.manager.getAccumulator(), 0.98333f, 1e-4f);
    EXPECT_NEAR(ball.actor->getGlobalPose().p.x, 1.0f, 1e-3f) << "a second's debt must move bodies by one step";
    EXPECT_TRUE(world.manager.step(0.0001f)) << "the debt must be kept";
    EXPECT_NEAR(ball.actor->getGlobalPose().p.x, 2.0f, 1e-3f);
}

TEST(FixedStep, PullsBodiesDownThreeTimesAsHardAsOnEarth)
{
    WorldFixture world;
    PhysicNode& ball = world.ballAt({0, 100, 0});
    world.manager.step(1.0f / 60);
    EXPECT_NEAR(bodyOf(ball).getLinearVelocity().y, -29.43f / 60, 1e-3f);
}

TEST(PhysxManager, IsOneWorldThatCanBeMadeAnew)
{
    {
        WorldFixture world;
        EXPECT_EQ(PhysxManager::getInstance(nullptr), &world.manager);
        EXPECT_EQ(PhysxManager::instance(), &world.manager);
        world.carAt({0, 5, 0});
        world.pass();
    }
    EXPECT_EQ(PhysxManager::instance(), nullptr) << "asking must not create a world";
    WorldFixture fresh;
    fresh.carAt({0, 5, 0});
    fresh.pass();
    EXPECT_EQ(fresh.manager.getScene().getNbActors(physx::PxActorTypeFlag::eRIGID_DYNAMIC), 1u);
}

TEST(Ball, IsASphereOfRadiusOneAndDensityTen)
{
    WorldFixture world;
    SceneGraph graph;
    PhysicNode& ball = *world.manager.createBall();
    graph.getRoot()->addChild(&ball);
    graph.update();
    EXPECT_TRUE(isNear(ball.getWorldTransform(), glm::translate(glm::mat4(1), glm::vec3(0, 10, 0))));
    EXPECT_NEAR(bodyOf(ball).getMass(), 41.888f, 0.01f);

    physx::PxShape* shape = nullptr;
    ASSERT_EQ(ball.actor->getShapes(&shape, 1), 1u);
    EXPECT_NEAR(shape->getGeometry().sphere().radius, 1.0f, 1e-6f);
    EXPECT_EQ(shape->getQueryFilterData().word3, 0u);
    physx::PxMaterial* material = nullptr;
    shape->getMaterials(&material, 1);
    EXPECT_FLOAT_EQ(material->getDynamicFriction(), 0.5f);
    EXPECT_FLOAT_EQ(material->getRestitution(), 0.1f);
}

TEST(PhysicNode, PlacedAnewStandsUprightAndKeepsItsVelocities)
{
    WorldFixture world;
    SceneGraph graph;
    PhysicNode& ball = world.ballAt({0, 10, 0}, {3, 4, 5});
    graph.getRoot()->addChild(&ball);
    bodyOf(ball).setAngularVelocity(physx::PxVec3(0, 7, 0));
    for (int i = 0; i < 10; ++i) world.pass();
    const physx::PxVec3 velocity = bodyOf(ball).getLinearVelocity(), spin = bodyOf(ball).getAngularVelocity();
    ASSERT_GT(spin.magnitude(), 1) << "the ball was to spin";

    ball.setPosition(1, 2, 3);
    graph.update();
    EXPECT_TRUE(isNear(ball.getWorldTransform(), glm::translate(glm::mat4(1), glm::vec3(1, 2, 3))));
    EXPECT_EQ(bodyOf(ball).getLinearVelocity(), velocity);
    EXPECT_EQ(bodyOf(ball).getAngularVelocity(), spin);
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

TEST(PhysicNode, TakesItsActorOutOfTheSceneWhenDestroyed)
{
    WorldFixture world;
    SceneGraph graph;
    PhysicNode& ball = world.ballAt({0, 10, 0});
    graph.getRoot()->addChild(&ball);
    ASSERT_TRUE(isInScene(*ball.actor));
    ball.destroy();
    EXPECT_FALSE(isInScene(*ball.actor));
    EXPECT_TRUE(graph.getRoot()->getChildren().empty());
    graph.update();
    world.pass();
}
