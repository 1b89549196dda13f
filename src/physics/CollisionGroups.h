#pragma once

#include <PxFiltering.h>

/// Who collides with whom. Each shape's simulation record holds its own group's bit in word0 and the groups that it
/// touches in word1. word2 adds pair flags and bit 0 of word3 asks for swept contacts; no shape of the game uses these.
enum CollisionGroup : physx::PxU32 {
    kGroundGroup = 1,
    kWheelGroup = 2,
    kChassisGroup = 4,
    kObstacleGroup = 8,
    kDrivableObstacleGroup = 16, // listed in masks; no shape carries it
};

/// Return the simulation record of a shape of that group. A drivable obstacle touches nothing of its own accord.
physx::PxFilterData simulationFilter(CollisionGroup group);

/// The scene's filter shader: suppress a pair when neither side lists the other, report its touches when both do.
physx::PxFilterFlags filterCollisions(physx::PxFilterObjectAttributes attributesA, physx::PxFilterData a,
    physx::PxFilterObjectAttributes attributesB, physx::PxFilterData b, physx::PxPairFlags& pairFlags,
    const void* constants, physx::PxU32 constantsSize);
