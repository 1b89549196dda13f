#pragma once

#include "base/FrameTimer.h"
#include "physics/DrivingControls.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "physics/Terrain.h"
#include "physics/VehicleHandle.h"
#include "testing/DataScratch.h"

#include <PxPhysicsAPI.h>
#include <glm/glm.hpp>

#include <cmath>
#include <functional>

/// A physics world for one test: ground, cars and balls in a line each, and passes as the game makes them at 120 a
/// second. One at a time; the world goes with it.
class WorldFixture {
public:
    using Heights = std::function<int(int x, int y)>; ///< height byte of pixel (x, y), y from the bottom row up

    WorldFixture() : manager(*PhysxManager::getInstance(nullptr)) {}
    ~WorldFixture() { delete &manager; }
    WorldFixture(const WorldFixture&) = delete;
    WorldFixture& operator=(const WorldFixture&) = delete;

    /// Make the ground from a picture of that many pixels; flat at height 0 by default.
    Terrain& ground(const Heights& heights = flat, int width = 512, int height = 512)
    {
        const DataScratch folder;
        folder.writeTga("Textures/map.tga", width, height, 1, [&heights](int x, int y, int) { return heights(x, y); });
        return *manager.createTerrain();
    }

    /// Place a new car there, at rest, upright and facing +z.
    VehicleHandle& carAt(const glm::vec3& position)
    {
        VehicleHandle& car = *manager.createVehicle();
        car.placeAt(position);
        return car;
    }

    PhysicNode& ballAt(const glm::vec3& position)
    {
        PhysicNode& ball = *manager.createBall();
        ball.setPosition(position.x, position.y, position.z);
        return ball;
    }

    /// Make passes, for that many seconds by the clock on the wall. `each` runs before every pass.
    void run(float seconds, const std::function<void()>& each = doNothing)
    {
        constexpr float kPassSeconds = 1.0f / 120.0f;
        for (long passes = std::lround(seconds / kPassSeconds); passes > 0; --passes) {
            each();
            manager.updateVehicles(kGameTimeScale * kPassSeconds, physx::PxVec3(0, -9.81f, 0));
            manager.step(kGameTimeScale * kPassSeconds);
        }
    }

    PhysxManager& manager;

private:
    static int flat(int, int) { return 0; }
    static void doNothing() {}
};
