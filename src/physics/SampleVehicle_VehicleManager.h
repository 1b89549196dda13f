#pragma once

#include "physics/VehicleHandle.h"

#include <vehicle/PxVehicleUpdate.h>

#include <array>
#include <memory>

namespace physx {
class PxBatchQuery;
class PxConvexMesh;
class PxCooking;
class PxMaterial;
class PxPhysics;
class PxScene;
class PxTransform;
class PxVehicleDrivableSurfaceToTireFrictionPairs;
class PxVehicleWheels;
}
struct VehicleSceneQueryData;

constexpr physx::PxU32 MAX_NUM_4W_VEHICLES = 16;
constexpr physx::PxU32 kWheelsPerVehicle = 4;

/// All cars and what moves them. Owned by PhysxManager: init() once, then update() once a pass; release() at the end.
class VehicleManager {
public:
    VehicleManager();
    ~VehicleManager();

    /// Initialise the SDK's vehicle library. Entry i of both four-element arrays: a standard material and its drivable
    /// surface type.
    void init(physx::PxPhysics& physics, const physx::PxMaterial* const* materials, const physx::PxU32* surfaceTypes);

    /// Put a car at rest into the scene, in first gear, at startTransform. chassisMass in kilograms; the offsets, from
    /// the chassis origin, and the meshes of the wheels: front left, front right, rear left, rear right. A seventeenth
    /// car is an assertion.
    VehicleHandle* create4WVehicle(physx::PxScene& scene, physx::PxPhysics& physics, physx::PxCooking& cooking,
        const physx::PxMaterial& material, physx::PxF32 chassisMass, const physx::PxVec3* wheelCentreOffsets4,
        physx::PxConvexMesh* chassisMesh, physx::PxConvexMesh* const* wheelMeshes4,
        const physx::PxTransform& startTransform, bool useAutoGearFlag);

    /// Smooth the controls, cast the wheels' rays, then move the cars. dt: seconds of game time; gravity: units per
    /// second squared.
    void update(float dt, const physx::PxVec3& gravity, physx::PxScene& scene);

    /// Free the cars (their actors stay with the scene), the buffers and the vehicle library.
    void release();

    physx::PxU32 getNumVehicles() const { return mNumVehicles; }
    physx::PxVehicleWheels* getVehicle(physx::PxU32 i) const { return mVehicles.at(i); }
    VehicleHandle* getHandle(physx::PxU32 i) const { return handles.at(i).get(); }

private:
    void smoothInputs(float dt);
    void castSuspensionRays(physx::PxScene& scene);

    std::array<physx::PxVehicleWheels*, MAX_NUM_4W_VEHICLES> mVehicles{};
    std::array<std::unique_ptr<VehicleHandle>, MAX_NUM_4W_VEHICLES> handles;
    physx::PxU32 mNumVehicles = 0;

    // Written by each update and read by the next: whether a car is in the air decides how its steering is smoothed.
    std::array<std::array<physx::PxWheelQueryResult, kWheelsPerVehicle>, MAX_NUM_4W_VEHICLES> wheelQueries;
    std::array<physx::PxVehicleWheelQueryResult, MAX_NUM_4W_VEHICLES> vehicleQueries;

    VehicleSceneQueryData* sceneQueryData = nullptr;
    physx::PxBatchQuery* batchQuery = nullptr; // made by the first update
    physx::PxVehicleDrivableSurfaceToTireFrictionPairs* frictionPairs = nullptr;
};
