#include "physics/SampleVehicle_SceneQuery.h"

#include "base/Assert.h"

#include <PxPhysicsAPI.h>

#include <cstddef>
#include <memory>

using namespace physx;

namespace {

constexpr PxU32 kDrivable = 0xFFFF0000;
constexpr PxU32 kNotDrivable = 0x0000FFFF;
constexpr std::size_t kBlockAlignment = 16; // what the SDK's allocator guarantees

void claimWord3(PxFilterData& filterData, PxU32 value)
{
    QKD_ASSERT(filterData.word3 == 0, "word3 is reserved for filter data for vehicle raycast queries");
    filterData.word3 = value;
}

constexpr std::size_t alignedUp(std::size_t bytes)
{
    return (bytes + kBlockAlignment - 1) / kBlockAlignment * kBlockAlignment;
}

} // namespace

void setupDrivableSurface(PxFilterData& filterData)
{
    claimWord3(filterData, kDrivable);
}

void setupNonDrivableSurface(PxFilterData& filterData)
{
    claimWord3(filterData, kNotDrivable);
}

void setupVehicleShape(PxFilterData& filterData)
{
    claimWord3(filterData, kNotDrivable);
}

PxQueryHitType::Enum filterWheelRay(PxFilterData, PxFilterData object, const void*, PxU32, PxHitFlags&)
{
    return (object.word3 & kDrivable) ? PxQueryHitType::eBLOCK : PxQueryHitType::eNONE;
}

VehicleSceneQueryData* VehicleSceneQueryData::allocate(PxU32 wheels)
{
    const std::size_t headerBytes = alignedUp(sizeof(VehicleSceneQueryData));
    const std::size_t resultBytes = alignedUp(sizeof(PxRaycastQueryResult) * wheels);
    const std::size_t hitBytes = sizeof(PxRaycastHit) * wheels;
    void* memory = PxGetFoundation().getAllocatorCallback().allocate(headerBytes + resultBytes + hitBytes,
        "PxVehicleNWSceneQueryData", "SampleVehicle_SceneQuery", __LINE__);
    auto* block = static_cast<std::byte*>(memory);

    auto* data = new (block) VehicleSceneQueryData{};
    data->results = reinterpret_cast<PxRaycastQueryResult*>(block + headerBytes);
    data->hits = reinterpret_cast<PxRaycastHit*>(block + headerBytes + resultBytes);
    std::uninitialized_value_construct_n(data->results, wheels);
    std::uninitialized_value_construct_n(data->hits, wheels);
    data->preFilterShader = filterWheelRay;
    data->capacity = wheels;
    return data;
}

void VehicleSceneQueryData::free()
{
    // Nothing in the block owns anything.
    PxGetFoundation().getAllocatorCallback().deallocate(this);
}

PxBatchQuery* VehicleSceneQueryData::createBatchQuery(PxScene& scene) const
{
    PxBatchQueryDesc description(capacity, 0, 0);
    description.queryMemory.userRaycastResultBuffer = results;
    description.queryMemory.userRaycastTouchBuffer = hits;
    description.queryMemory.raycastTouchBufferSize = capacity;
    description.preFilterShader = preFilterShader;
    return scene.createBatchQuery(description);
}
