#pragma once

#include <foundation/PxSimpleTypes.h>
#include <foundation/PxVec3.h>

namespace physx {
class PxConvexMesh;
class PxCooking;
class PxPhysics;
}

constexpr physx::PxU32 MAX_NUM_VERTS_IN_CIRCLE = 16;

/// A wheel: a cylinder about the x axis around the origin, with fewer than MAX_NUM_VERTS_IN_CIRCLE points a circle.
/// Null when cooking fails.
physx::PxConvexMesh* createWheelConvexMesh(float width, float radius, physx::PxU32 numCirclePoints,
    physx::PxPhysics& physics, physx::PxCooking& cooking);

/// A box of these half extents around (0, verticalOffset, 0). Null when cooking fails.
physx::PxConvexMesh* createCuboidConvexMesh(const physx::PxVec3& halfExtents, float verticalOffset,
    physx::PxPhysics& physics, physx::PxCooking& cooking);
