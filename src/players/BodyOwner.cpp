#include "players/BodyOwner.h"

#include <PxRigidActor.h>

void BodyOwner::claim(physx::PxRigidActor& body)
{
    body.userData = this;
}

BodyOwner BodyOwner::of(const physx::PxRigidActor& body)
{
    return body.userData ? *static_cast<const BodyOwner*>(body.userData) : BodyOwner();
}
