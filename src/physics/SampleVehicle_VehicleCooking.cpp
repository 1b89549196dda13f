#include "physics/SampleVehicle_VehicleCooking.h"

#include "base/Assert.h"

#include <PxPhysicsAPI.h>

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

using namespace physx;

namespace {

PxConvexMesh* createConvexMesh(const PxVec3* points, PxU32 count, PxPhysics& physics, PxCooking& cooking)
{
    PxConvexMeshDesc description;
    description.points.count = count;
    description.points.stride = sizeof(PxVec3);
    description.points.data = points;
    description.flags = PxConvexFlag::eCOMPUTE_CONVEX;

    PxDefaultMemoryOutputStream cooked;
    if (!cooking.cookConvexMesh(description, cooked)) return nullptr;
    PxDefaultMemoryInputData input(cooked.getData(), cooked.getSize());
    return physics.createConvexMesh(input);
}

} // namespace

PxConvexMesh* createWheelConvexMesh(float width, float radius, PxU32 numCirclePoints, PxPhysics& physics,
    PxCooking& cooking)
{
    QKD_ASSERT(numCirclePoints < MAX_NUM_VERTS_IN_CIRCLE, "numCirclePoints<MAX_NUM_VERTS_IN_CIRCLE");
    std::vector<PxVec3> points;
    for (PxU32 i = 0; i < numCirclePoints; ++i) {
        const float angle =
            static_cast<float>(i) * 2.0f * std::numbers::pi_v<float> / static_cast<float>(numCirclePoints);
        const float y = radius * std::cos(angle), z = radius * std::sin(angle);
        points.emplace_back(-width / 2, y, z);
        points.emplace_back(width / 2, y, z);
    }
    return createConvexMesh(points.data(), static_cast<PxU32>(points.size()), physics, cooking);
}

PxConvexMesh* createCuboidConvexMesh(const PxVec3& half, float verticalOffset, PxPhysics& physics, PxCooking& cooking)
{
    std::array<PxVec3, 8> points;
    for (unsigned i = 0; i < points.size(); ++i) {
        const float x = i & 4 ? half.x : -half.x, y = i & 2 ? half.y : -half.y, z = i & 1 ? half.z : -half.z;
        points[i] = PxVec3(x, y + verticalOffset, z);
    }
    return createConvexMesh(points.data(), static_cast<PxU32>(points.size()), physics, cooking);
}
