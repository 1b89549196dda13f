#pragma once

#include <foundation/PxSimpleTypes.h>
#include <foundation/PxVec3.h>

namespace physx {
class PxConvexMesh;
class PxCooking;
class PxPhysics;
}

constexpr physx::PxU32 MAX_NUM_VERTS_IN_CIRCLE = 16;

/// Cook a wheel: a cylinder about the x axis around the origin with fewer than MAX_NUM_VERTS_IN_CIRCLE points a circle.
/// Return null when that fails.
physx::PxConvexMesh* createWheelConvexMesh(float width, float radius, physx::PxU32 numCirclePoints,
    physx::PxPhysics& physics, physx::PxCooking& cooking);

/// Cook a box of these half extents around (0, verticalOffset, 0). Return null when that fails.
physx::PxConvexMesh* createCuboidConvexMesh(const physx::PxVec3& halfExtents, float verticalOffset,
    physx::PxPhysics& physics, physx::PxCooking& cooking);
