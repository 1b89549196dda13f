#pragma once

#include <PxBatchQueryDesc.h>
#include <PxFiltering.h>
#include <PxQueryFiltering.h>

namespace physx {
class PxBatchQuery;
class PxScene;
}

/// Fill word3, which must still be zero, of a query record: it tells a wheel's ray what it may stand on.
void setupDrivableSurface(physx::PxFilterData& filterData);
void setupNonDrivableSurface(physx::PxFilterData& filterData);
void setupVehicleShape(physx::PxFilterData& filterData); ///< cars do not drive on each other

/// The wheel rays' pre-filter: let only a drivable surface stop a ray.
physx::PxQueryHitType::Enum filterWheelRay(physx::PxFilterData query, physx::PxFilterData object, const void* constants,
    physx::PxU32 constantsSize, physx::PxHitFlags& hitFlags);

/// The buffers that the wheels' rays write into: a header, the results and the hits in one block from the SDK's
/// allocator. allocate() and free() in pairs, both while the foundation exists.
struct VehicleSceneQueryData {
    physx::PxRaycastQueryResult* results;
    physx::PxRaycastHit* hits;
    physx::PxBatchQueryPreFilterShader preFilterShader;
    physx::PxU32 capacity; ///< rays; one a wheel

    static VehicleSceneQueryData* allocate(physx::PxU32 wheels);
    void free();

    /// Create a batch query of that scene on these buffers; to be released before them.
    physx::PxBatchQuery* createBatchQuery(physx::PxScene& scene) const;
};
