#include "match/BareMatch.h"

#include "physics/PhysxManager.h"

BareMatch::PhysicsEnd::~PhysicsEnd()
{
    delete PhysxManager::instance();
}
