#pragma once

#include <foundation/PxVec3.h>

#include <array>
#include <memory>
#include <vector>

namespace physx {
class PxActor;
class PxConvexMesh;
class PxCooking;
class PxDefaultCpuDispatcher;
class PxFoundation;
class PxMaterial;
class PxPhysics;
class PxPvd;
class PxPvdTransport;
class PxScene;
class PxSimulationEventCallback;
}
class PhysicNode;
class Terrain;
class VehicleHandle;
class VehicleManager;

/// The rigid-body world: the SDK's objects, the ground, the cars and the balls. One at a time in a process; made by the
/// first getInstance(), and in the game never destroyed. Once a pass: updateVehicles(), then step(), with the same dt.
/// Main thread only.
class PhysxManager {
public:
    /// The world, created by the first call with that receiver of contacts (borrowed, may be null); later calls ignore
    /// the argument. A program without physics library has no game: a failure is logged and ends the process with
    /// status 1.
    static PhysxManager* getInstance(physx::PxSimulationEventCallback* game);

    /// The world, or null while there is none.
    static PhysxManager* instance() { return theInstance; }

    /// Releases the whole world, after which getInstance() makes a fresh one. Terrains and vehicle handles go with it,
    /// nodes stay.
    virtual ~PhysxManager();
    PhysxManager(const PhysxManager&) = delete;
    PhysxManager& operator=(const PhysxManager&) = delete;

    /// Adds dt (seconds of game time) to the time owed and, if that makes up a fixed step of 1/60 s, simulates exactly
    /// one: true then. Contacts are reported inside this call.
    virtual bool step(float dt);

    /// Feeds every car its driver's controls, finds the ground under its wheels and advances it. dt: seconds of game
    /// time; gravity: units per second squared.
    void updateVehicles(float dt, const physx::PxVec3& gravity);

    /// A new car in first gear at (rand() % 10, 5, 0); there is room for MAX_NUM_4W_VEHICLES. The world owns the
    /// handle.
    VehicleHandle* createVehicle();

    /// A new sphere of radius 1 at (0, 10, 0) and the node that follows it; the caller places it and puts it into the
    /// tree.
    PhysicNode* createBall();

    /// The ground from "Textures/map.tga"; the world owns it. Its node awaits a place in the tree.
    Terrain* createTerrain();

    /// Takes the actor out of the scene; it is not released.
    void removeActor(physx::PxActor* actor);

    physx::PxScene& getScene() const { return *scene; }
    VehicleManager& getVehicleManager() const { return *vehicleManager; }
    float getAccumulator() const { return accumulator; } ///< seconds of game time owed

private:
    explicit PhysxManager(physx::PxSimulationEventCallback* game);

    void createSdk();
    void createScene(physx::PxSimulationEventCallback* game);
    void createMaterials();
    void cookVehicleMeshes();
    void connectVisualDebugger();
    physx::PxMaterial& getBallMaterial();

    static PhysxManager* theInstance;

    std::unique_ptr<VehicleManager> vehicleManager;
    std::vector<std::unique_ptr<Terrain>> terrains;

    std::array<physx::PxU32, 4> surfaceTypes{};      // drivable surface type of each standard material
    std::array<physx::PxMaterial*, 4> materials{};   // the standard materials, index = surface type
    physx::PxMaterial* ballMaterial = nullptr;       // made with the first ball, shared by all
    std::array<physx::PxVec3, 4> wheelCentreOffsets; // relative to the chassis origin
    physx::PxConvexMesh* chassisConvexMesh = nullptr;
    std::array<physx::PxConvexMesh*, 4> wheelConvexMeshes{};

    physx::PxFoundation* foundation = nullptr;
    physx::PxPvd* visualDebugger = nullptr;
    physx::PxPvdTransport* debuggerTransport = nullptr;
    physx::PxPhysics* physics = nullptr;
    physx::PxCooking* cooking = nullptr;
    physx::PxScene* scene = nullptr;
    physx::PxDefaultCpuDispatcher* cpuDispatcher = nullptr;

    physx::PxU32 numThreads = 1; // the dispatcher's workers

    float accumulator = 0;         // seconds of game time not yet simulated
    float stepSize = 1.0f / 60.0f; // seconds
};
