#include "physics/PhysxManager.h"

#include "base/Logger.h"
#include "base/Random.h"
#include "physics/CollisionGroups.h"
#include "physics/DebuggerTransport.h"
#include "physics/PhysicNode.h"
#include "physics/SampleVehicle_SceneQuery.h"
#include "physics/SampleVehicle_VehicleCooking.h"
#include "physics/SampleVehicle_VehicleManager.h"
#include "physics/Terrain.h"

#include <PxPhysicsAPI.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>

using namespace physx;

namespace {

// Units per second squared. Three times 9.81: bodies move one step a pass while game time runs three times faster.
const PxVec3 kSceneGravity(0, -29.43f, 0);

constexpr float staticFrictions[] = {0.9f, 0.9f, 0.9f, 0.9f};
constexpr float dynamicFrictions[] = {0.9f, 0.9f, 0.9f, 0.9f};
constexpr float restitutions[] = {0.2f, 0.2f, 0.2f, 0.2f};
constexpr std::size_t kGameMaterial = 1; // cars and ground; the cars' tires grip best on its surface type

constexpr float kWheelWidth = 0.35f;
constexpr float kWheelRadius = 0.45f;
constexpr PxU32 kWheelCirclePoints = 8;
constexpr float kChassisRise = 0.2f; // of the collision box above the chassis origin
constexpr float kChassisMass = 1500; // kilograms
constexpr float kVehicleStartHeight = 5;
constexpr int kVehicleStartRange = 10; // a car starts at a whole x from 0 to 9

const PxVec3 kBallStart(0, 10, 0);
constexpr float kBallRadius = 1;
constexpr float kBallDensity = 10;
constexpr float kBallFriction = 0.5f;
constexpr float kBallRestitution = 0.1f;

constexpr std::uint16_t kDebuggerPort = 5425;

PxDefaultAllocator& allocator()
{
    static PxDefaultAllocator instance;
    return instance;
}

PxDefaultErrorCallback& errorCallback()
{
    static PxDefaultErrorCallback instance;
    return instance;
}

/// Return that object, without which there is no world and no game: where it is null, log and end the process.
template <class T>
T* required(T* object, const char* failure)
{
    if (object) return object;
    logLine(0) << failure << std::endl;
    std::exit(EXIT_FAILURE);
}

} // namespace

PhysxManager* PhysxManager::theInstance = nullptr;

PhysxManager* PhysxManager::getInstance(PxSimulationEventCallback* game)
{
    if (!theInstance) theInstance = new PhysxManager(game);
    return theInstance;
}

PhysxManager::PhysxManager(PxSimulationEventCallback* game)
    : vehicleManager(std::make_unique<VehicleManager>()),
      debuggerTransport(std::make_unique<DebuggerTransport>(kDebuggerPort))
{
    createSdk();
    createScene(game);
    createMaterials();
    cookVehicleMeshes();
    vehicleManager->init(*physics, materials.data(), surfaceTypes.data());
    visualDebugger->connect(*debuggerTransport, PxPvdInstrumentationFlag::eALL);
}

PhysxManager::~PhysxManager()
{
    vehicleManager->release();
    scene->release();
    cpuDispatcher->release();
    cooking->release();
    PxCloseExtensions();
    physics->release();
    visualDebugger->release();
    foundation->release();
    theInstance = nullptr;
}

void PhysxManager::createSdk()
{
    foundation = required(PxCreateFoundation(PX_PHYSICS_VERSION, allocator(), errorCallback()),
        "Could not create Phyx Foundation");
    visualDebugger = required(PxCreatePvd(*foundation), "PxProfileZoneManager::createProfileZoneManager failed!");

    const PxTolerancesScale scale;
    physics = required(PxCreatePhysics(PX_PHYSICS_VERSION, *foundation, scale, true, visualDebugger),
        "PxCreatePhysics failed!");
    if (!PxInitExtensions(*physics, visualDebugger)) logLine(0) << "PxInitExtensions failed!" << std::endl;
    cooking =
        required(PxCreateCooking(PX_PHYSICS_VERSION, *foundation, PxCookingParams(scale)), "PxCreateCooking failed!");
}

void PhysxManager::createScene(PxSimulationEventCallback* game)
{
    cpuDispatcher = required(PxDefaultCpuDispatcherCreate(numThreads), "PxDefaultCpuDispatcherCreate failed!");
    PxSceneDesc sceneDesc(physics->getTolerancesScale());
    sceneDesc.gravity = kSceneGravity;
    sceneDesc.simulationEventCallback = game;
    sceneDesc.filterShader = filterCollisions;
    sceneDesc.flags |= PxSceneFlag::eENABLE_CCD;
    sceneDesc.cpuDispatcher = cpuDispatcher;
    scene = required(physics->createScene(sceneDesc), "createScene failed!");
}

void PhysxManager::createMaterials()
{
    for (PxU32 i = 0; i < materials.size(); ++i) {
        materials[i] = physics->createMaterial(staticFrictions[i], dynamicFrictions[i], restitutions[i]);
        if (!materials[i]) std::cout << "createMaterial failed\n";
        surfaceTypes[i] = i;
    }
}

void PhysxManager::cookVehicleMeshes()
{
    wheelCentreOffsets = {
        PxVec3(-0.9193479f, -0.7525774f, 1.51114f), // front left
        PxVec3(0.9193479f, -0.7525774f, 1.51114f),
        PxVec3(-0.9193479f, -0.7525774f, -1.51114f), // rear left
        PxVec3(0.9193479f, -0.7525774f, -1.51114f),
    };
    chassisConvexMesh = createCuboidConvexMesh(PxVec3(1, 1, 1), kChassisRise, *physics, *cooking);
    for (PxConvexMesh*& mesh : wheelConvexMeshes)
        mesh = createWheelConvexMesh(kWheelWidth, kWheelRadius, kWheelCirclePoints, *physics, *cooking);
}

bool PhysxManager::step(float dt)
{
    accumulator += dt;
    if (accumulator < stepSize) return false;

    accumulator -= stepSize;
    scene->simulate(stepSize);
    scene->fetchResults(true);
    dropLostDebugger();
    return true;
}

void PhysxManager::dropLostDebugger()
{
    if (!debuggerTransport->takeLoss()) return;
    visualDebugger->disconnect(); // or the SDK would go on gathering what nobody takes
    logLine(1) << "The visual debugger at port " << kDebuggerPort << " takes no data; going on without it" << std::endl;
}

void PhysxManager::updateVehicles(float dt, const PxVec3& gravity)
{
    vehicleManager->update(dt, gravity, *scene);
}

VehicleHandle* PhysxManager::createVehicle()
{
    const auto x = static_cast<float>(drawRandom() % kVehicleStartRange);
    return vehicleManager->create4WVehicle(*scene, *physics, *cooking, *materials[kGameMaterial], kChassisMass,
        wheelCentreOffsets.data(), chassisConvexMesh, wheelConvexMeshes.data(),
        PxTransform(PxVec3(x, kVehicleStartHeight, 0)), true);
}

PxMaterial& PhysxManager::getBallMaterial()
{
    if (!ballMaterial) ballMaterial = physics->createMaterial(kBallFriction, kBallFriction, kBallRestitution);
    if (ballMaterial) return *ballMaterial;
    logLine(0) << "createMaterial failed!" << std::endl;
    return *materials[kGameMaterial];
}

PhysicNode* PhysxManager::createBall()
{
    PxRigidDynamic* actor = PxCreateDynamic(*physics, PxTransform(kBallStart), PxSphereGeometry(kBallRadius),
        getBallMaterial(), kBallDensity);
    std::array<PxShape*, 16> shapeBuffer;
    const PxU32 count = actor->getShapes(shapeBuffer.data(), static_cast<PxU32>(shapeBuffer.size()));
    for (PxU32 i = 0; i < count; ++i) {
        shapeBuffer[i]->setSimulationFilterData(simulationFilter(kObstacleGroup));
        shapeBuffer[i]->setQueryFilterData(PxFilterData());
        shapeBuffer[i]->setFlag(PxShapeFlag::eVISUALIZATION, false);
    }

    auto* node = new PhysicNode;
    node->actor = actor;
    scene->addActor(*actor);
    return node;
}

Terrain* PhysxManager::createTerrain()
{
    PxFilterData queryFilter;
    setupDrivableSurface(queryFilter);
    terrains.push_back(std::make_unique<Terrain>());
    terrains.back()->createPhysics(*physics, *cooking, *scene, *materials[kGameMaterial],
        simulationFilter(kGroundGroup), queryFilter);
    return terrains.back().get();
}

void PhysxManager::removeActor(PxActor* actor)
{
    scene->removeActor(*actor);
}
