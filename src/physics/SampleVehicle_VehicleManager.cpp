#include "physics/SampleVehicle_VehicleManager.h"

#include "base/Assert.h"
#include "physics/CollisionGroups.h"
#include "physics/SampleVehicle_SceneQuery.h"
#include "physics/VehicleParameters.h"

#include <PxPhysicsAPI.h>
#include <vehicle/PxVehicleUtil.h>

using namespace physx;

namespace {

constexpr PxU32 kMaxWheels = MAX_NUM_4W_VEHICLES * kWheelsPerVehicle;
constexpr PxU32 kSurfaceTypes = 4;
constexpr PxU32 kTireTypes = 4;

constexpr float kFriction[kSurfaceTypes][kTireTypes] = {
    {0.95f, 0.95f, 0.95f, 0.95f},
    {1.10f, 1.15f, 1.10f, 1.10f}, // everything in the game is of this surface type
    {0.70f, 0.70f, 0.70f, 0.70f},
    {0.80f, 0.80f, 0.80f, 0.80f},
};

// Change per second of game time: accelerator, brake, hand brake, steer left, steer right.
const PxVehiclePadSmoothingData kPadSmoothing = {
    {6.0f, 6.0f, 12.0f, 2.5f, 2.5f},   // rising
    {10.0f, 10.0f, 12.0f, 5.0f, 5.0f}, // falling
};

// Forward speed, units per second, and the part of the full steering angle that is left at it.
constexpr PxU32 kSteerPairs = 4;
constexpr PxReal kSteerVsForwardSpeed[kSteerPairs][2] = {
    {0, 0.9f},
    {5, 0.7f},
    {30, 0.5f},
    {120, 0.3f},
};
const PxFixedSizeLookupTable<8> kSteerVsForwardSpeedTable(*kSteerVsForwardSpeed, kSteerPairs);

PxVehicleDrivableSurfaceToTireFrictionPairs* createFrictionPairs(const PxMaterial* const* materials,
    const PxU32* surfaceTypes)
{
    const PxMaterial* surfaceMaterials[kSurfaceTypes];
    PxVehicleDrivableSurfaceType types[kSurfaceTypes];
    for (PxU32 i = 0; i < kSurfaceTypes; ++i) {
        surfaceMaterials[i] = materials[i];
        types[i].mType = surfaceTypes[i];
    }

    auto* pairs = PxVehicleDrivableSurfaceToTireFrictionPairs::allocate(kTireTypes, kSurfaceTypes);
    pairs->setup(kTireTypes, kSurfaceTypes, surfaceMaterials, types);
    for (PxU32 surface = 0; surface < kSurfaceTypes; ++surface) {
        for (PxU32 tire = 0; tire < kTireTypes; ++tire)
            pairs->setTypePairFriction(surface, tire, kFriction[surface][tire]);
    }
    return pairs;
}

PxFilterData vehicleQueryFilter()
{
    PxFilterData filterData;
    setupVehicleShape(filterData);
    return filterData;
}

void addShape(PxRigidDynamic& actor, PxConvexMesh* mesh, const PxMaterial& material, CollisionGroup group)
{
    PxShape* shape = PxRigidActorExt::createExclusiveShape(actor, PxConvexMeshGeometry(mesh), material);
    shape->setQueryFilterData(vehicleQueryFilter());
    shape->setSimulationFilterData(simulationFilter(group));
}

PxRigidDynamic* createActor(PxPhysics& physics, const PxMaterial& material, const PxVehicleChassisData& chassis,
    PxConvexMesh* chassisMesh, PxConvexMesh* const* wheelMeshes4)
{
    PxRigidDynamic* actor = physics.createRigidDynamic(PxTransform(PxIdentity));
    for (PxU32 i = 0; i < kWheelsPerVehicle; ++i) addShape(*actor, wheelMeshes4[i], material, kWheelGroup);
    addShape(*actor, chassisMesh, material, kChassisGroup);
    actor->setMass(chassis.mMass);
    actor->setMassSpaceInertiaTensor(chassis.mMOI);
    actor->setCMassLocalPose(PxTransform(chassis.mCMOffset));
    return actor;
}

void reset(PxVehicleDrive4W& vehicle, const PxTransform& startTransform)
{
    vehicle.setToRestState();
    vehicle.mDriveDynData.forceGearChange(PxVehicleGearsData::eFIRST);
    vehicle.getRigidDynamicActor()->setGlobalPose(startTransform);
}

} // namespace

VehicleManager::VehicleManager()
{
    for (PxU32 i = 0; i < MAX_NUM_4W_VEHICLES; ++i) vehicleQueries[i] = {wheelQueries[i].data(), kWheelsPerVehicle};
}

VehicleManager::~VehicleManager() = default;

void VehicleManager::init(PxPhysics& physics, const PxMaterial* const* materials, const PxU32* surfaceTypes)
{
    PxInitVehicleSDK(physics);
    PxVehicleSetBasisVectors(PxVec3(0, 1, 0), PxVec3(0, 0, 1));
    PxVehicleSetUpdateMode(PxVehicleUpdateMode::eVELOCITY_CHANGE);
    mVehicles.fill(nullptr);
    sceneQueryData = VehicleSceneQueryData::allocate(kMaxWheels);
    frictionPairs = createFrictionPairs(materials, surfaceTypes);
}

VehicleHandle* VehicleManager::create4WVehicle(PxScene& scene, PxPhysics& physics, PxCooking&,
    const PxMaterial& material, PxF32 chassisMass, const PxVec3* wheelCentreOffsets4, PxConvexMesh* chassisMesh,
    PxConvexMesh* const* wheelMeshes4, const PxTransform& startTransform, bool useAutoGearFlag)
{
    QKD_ASSERT(mNumVehicles < MAX_NUM_4W_VEHICLES, "mNumVehicles<MAX_NUM_4W_VEHICLES");

    std::array<WheelSize, kWheelsPerVehicle> wheelSizes;
    for (PxU32 i = 0; i < kWheelsPerVehicle; ++i) wheelSizes[i] = measureWheel(*wheelMeshes4[i]);
    PxVehicleWheelsSimData* wheels = PxVehicleWheelsSimData::allocate(kWheelsPerVehicle);
    PxVehicleDriveSimData4W drive;
    PxVehicleChassisData chassis;
    setUpVehicleSimulationData(chassisMass, wheelSizes.data(), wheelCentreOffsets4, *wheels, drive, chassis);
    for (PxU32 i = 0; i < kWheelsPerVehicle; ++i) {
        wheels->setSceneQueryFilterData(i, vehicleQueryFilter());
        wheels->setWheelShapeMapping(i, static_cast<PxI32>(i)); // the wheels are the actor's first shapes
    }

    PxRigidDynamic* actor = createActor(physics, material, chassis, chassisMesh, wheelMeshes4);
    PxVehicleDrive4W* vehicle = PxVehicleDrive4W::allocate(kWheelsPerVehicle);
    vehicle->setup(&physics, actor, *wheels, drive, 0);
    wheels->free();
    scene.addActor(*actor);
    reset(*vehicle, startTransform);
    vehicle->mDriveDynData.setUseAutoGears(useAutoGearFlag);

    mVehicles[mNumVehicles] = vehicle;
    handles[mNumVehicles] = std::make_unique<VehicleHandle>(*vehicle);
    return handles[mNumVehicles++].get();
}

void VehicleManager::update(float dt, const PxVec3& gravity, PxScene& scene)
{
    smoothInputs(dt);
    castSuspensionRays(scene);
    PxVehicleUpdates(dt, gravity, *frictionPairs, mNumVehicles, mVehicles.data(), vehicleQueries.data());
}

void VehicleManager::smoothInputs(float dt)
{
    for (PxU32 i = 0; i < mNumVehicles; ++i) {
        PxVehicleDrive4WSmoothAnalogRawInputsAndSetAnalogInputs(kPadSmoothing, kSteerVsForwardSpeedTable,
            handles[i]->getRawInputs(), dt, PxVehicleIsInAir(vehicleQueries[i]), handles[i]->getVehicle());
    }
}

void VehicleManager::castSuspensionRays(PxScene& scene)
{
    if (!batchQuery) batchQuery = sceneQueryData->createBatchQuery(scene);
    PxVehicleSuspensionRaycasts(batchQuery, mNumVehicles, mVehicles.data(), sceneQueryData->capacity,
        sceneQueryData->results);
}

void VehicleManager::release()
{
    for (PxU32 i = 0; i < mNumVehicles; ++i) {
        handles[i]->getVehicle().free();
        handles[i].reset();
        mVehicles[i] = nullptr;
    }
    mNumVehicles = 0;
    if (batchQuery) batchQuery->release();
    batchQuery = nullptr;
    sceneQueryData->free();
    sceneQueryData = nullptr;
    frictionPairs->release();
    frictionPairs = nullptr;
    PxCloseVehicleSDK();
}
