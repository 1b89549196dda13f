#include "physics/CollisionGroups.h"

using namespace physx;

namespace {

constexpr PxU32 kEveryGroup = kGroundGroup | kWheelGroup | kChassisGroup | kObstacleGroup | kDrivableObstacleGroup;
constexpr PxU32 kSweptContactsBit = 1; // of word3

PxU32 collidesWith(CollisionGroup group)
{
    switch (group) {
    case kGroundGroup: return kChassisGroup | kObstacleGroup | kDrivableObstacleGroup;
    case kWheelGroup: return kWheelGroup | kChassisGroup | kObstacleGroup; // rays hold them above the ground
    case kChassisGroup:
    case kObstacleGroup: return kEveryGroup;
    case kDrivableObstacleGroup: return 0;
    }
    return 0;
}

} // namespace

PxFilterData simulationFilter(CollisionGroup group)
{
    return {group, collidesWith(group), 0, 0};
}

PxFilterFlags filterCollisions(PxFilterObjectAttributes attributesA, PxFilterData a,
    PxFilterObjectAttributes attributesB, PxFilterData b, PxPairFlags& pairFlags, const void*, PxU32)
{
    if (PxFilterObjectIsTrigger(attributesA) || PxFilterObjectIsTrigger(attributesB)) {
        pairFlags = PxPairFlag::eTRIGGER_DEFAULT;
        return PxFilterFlag::eDEFAULT;
    }

    const bool bListsA = (a.word0 & b.word1) != 0;
    const bool aListsB = (b.word0 & a.word1) != 0;
    const bool grouped = a.word0 != 0 || b.word0 != 0;
    if (grouped && !bListsA && !aListsB) return PxFilterFlag::eSUPPRESS;

    pairFlags = PxPairFlag::eCONTACT_DEFAULT;
    if (bListsA && aListsB) pairFlags |= PxPairFlag::eNOTIFY_TOUCH_FOUND;
    if ((a.word3 | b.word3) & kSweptContactsBit) pairFlags |= PxPairFlag::eDETECT_CCD_CONTACT;
    pairFlags |= PxPairFlags(static_cast<PxU16>(a.word2 | b.word2));
    return PxFilterFlag::eDEFAULT;
}
