#include "players/Ball.h"

#include "base/FrameTimer.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "players/IStage.h"
#include "players/Player.h"
#include "scene/SceneGraph.h"

#include <PxPhysicsAPI.h>

Ball::Ball(SceneGraph& scene, IStage& ownStage, Player& shooter)
    : node(PhysxManager::instance()->createBall()), owner(&shooter), stage(ownStage),
      spawnTime(FrameTimer::getInstance()->getTimeMs())
{
    node->setName("Ball");
    model = stage.dressBall(*node, shooter.getColor());

    const glm::mat4 launch = shooter.getLaunchTransform();
    node->setPosition(launch[3].x, launch[3].y, launch[3].z);
    node->setLinearVelocity(glm::vec3(launch * glm::vec4(0, 0, kSpeed, 0)));
    scene.getRoot()->addChild(node);
}

Ball::~Ball()
{
    if (model) stage.undressBall(model);
    node->destroy();
    node->actor->release();
    node->actor = nullptr;
}

void Ball::registerHit()
{
    if (hitFlag) return;
    ++hits;
    hitFlag = true;
}

double Ball::getAge() const
{
    return FrameTimer::getInstance()->getTimeMs() - spawnTime;
}

bool Ball::isExpired() const
{
    return getAge() >= kLifetime;
}
