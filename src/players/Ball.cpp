#include "players/Ball.h"

#include "base/FrameTimer.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "players/IPresentation.h"
#include "players/Player.h"
#include "scene/SceneGraph.h"

#include <PxPhysicsAPI.h>

#include <tuple>

Ball::Ball(SceneGraph& scene, IPresentation& presentation, Player& shooter)
    : node(PhysxManager::instance()->createBall()), owner(&shooter),
      model(presentation.addBall(*node, shooter.getColor())), spawnTime(FrameTimer::getInstance()->getTimeMs())
{
    node->setName("Ball");
    bodyOwner.claim(*node->actor);

    const glm::mat4 launch = shooter.getLaunchTransform();
    node->setPosition(launch[3].x, launch[3].y, launch[3].z);
    node->setLinearVelocity(glm::vec3(launch * glm::vec4(0, 0, kSpeed, 0)));
    scene.getRoot()->addChild(node);
}

Ball::~Ball()
{
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

bool Ball::isOlderThan(const Ball& other) const
{
    // In one pass the participants fire in the order in which they joined.
    return std::tuple(spawnTime, owner->getNumber()) < std::tuple(other.spawnTime, other.owner->getNumber());
}
