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
class PxScene;
class PxSimulationEventCallback;
}
class DebuggerTransport;
class PhysicNode;
class Terrain;
class VehicleHandle;
class VehicleManager;

/// The rigid-body world: the SDK's objects, the ground, the cars and the balls. One at a time in a process; made by the
/// first getInstance(), and in the game never destroyed. Once a pass: updateVehicles(), then step(), with the same dt.
/// Main thread only. It is shown to a visual debugger that listens at port 5425 of this machine when it is made.
class PhysxManager {
public:
    /// Return the world. The first call creates it with that receiver of contacts (borrowed, may be null); later calls
    /// ignore the argument. Without the physics library there is no game: log a failure and end the process with
    /// status 1.
    static PhysxManager* getInstance(physx::PxSimulationEventCallback* game);

    /// Return the world, or null while there is none.
    static PhysxManager* instance() { return theInstance; }

    /// Release the whole world, after which getInstance() makes a fresh one. Terrains and vehicle handles go with it,
    /// nodes stay.
    virtual ~PhysxManager();
    PhysxManager(const PhysxManager&) = delete;
    PhysxManager& operator=(const PhysxManager&) = delete;

    /// Add dt (seconds of game time) to the time owed and, if that makes up a fixed step of 1/60 s, simulate exactly
    /// one and return true. Contacts are reported inside this call.
    virtual bool step(float dt);

    /// Feed every car its driver's controls, find the ground under its wheels and advance it. dt: seconds of game time;
    /// gravity: units per second squared.
    void updateVehicles(float dt, const physx::PxVec3& gravity);

    /// Create a car in first gear at (drawRandom() % 10, 5, 0); there is room for MAX_NUM_4W_VEHICLES. The world owns
    /// the handle.
    VehicleHandle* createVehicle();

    /// Create a sphere of radius 1 at (0, 10, 0) and return the node that follows it, which the caller places and puts
    /// into the tree.
    PhysicNode* createBall();

    /// Create the ground from "Textures/map.tga"; the world owns it. Its node awaits a place in the tree.
    Terrain* createTerrain();

    /// Take the actor out of the scene; it is not released.
    void removeActor(physx::PxActor* actor);

    physx::PxScene& getScene() const { return *scene; }
    float getAccumulator() const { return accumulator; } ///< seconds of game time owed

private:
    explicit PhysxManager(physx::PxSimulationEventCallback* game);

    void createSdk();
    void createScene(physx::PxSimulationEventCallback* game);
    void createMaterials();
    void cookVehicleMeshes();
    void dropLostDebugger();
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
    std::unique_ptr<DebuggerTransport> debuggerTransport; // outlives visualDebugger
    physx::PxPhysics* physics = nullptr;
    physx::PxCooking* cooking = nullptr;
    physx::PxScene* scene = nullptr;
    physx::PxDefaultCpuDispatcher* cpuDispatcher = nullptr;

    physx::PxU32 numThreads = 1; // the dispatcher's workers

    float accumulator = 0;         // seconds of game time not yet simulated
    float stepSize = 1.0f / 60.0f; // seconds
};
