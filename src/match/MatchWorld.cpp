#include "match/MatchWorld.h"

#include "physics/PhysxManager.h"

MatchWorld::MatchWorld(IPresentation& presentation, const PlayerColours& colours)
    : ground(*PhysxManager::getInstance(&hits)->createTerrain()), match(scene, presentation, ground, hits, colours)
{
}
