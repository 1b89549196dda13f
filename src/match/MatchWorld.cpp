#include "match/MatchWorld.h"

#include "physics/PhysxManager.h"

MatchWorld::MatchWorld(IPresentation& presentation)
    : ground(*PhysxManager::getInstance(&hits)->createTerrain()), match(scene, presentation, ground, hits)
{
}
