#pragma once

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

    static constexpr float kPassSeconds = 1.0f / 120.0f;  ///< real time of a pass
    static constexpr float kGameDelta = 3 * kPassSeconds; ///< game time of a pass

    WorldFixture() : manager(*PhysxManager::getInstance(nullptr)) {}
    ~WorldFixture() { delete &manager; }
    WorldFixture(const WorldFixture&) = delete;
    WorldFixture& operator=(const WorldFixture&) = delete;

    /// Ground of that height byte everywhere, 0 by default.
    Terrain& flatGround(int height = 0)
    {
        return ground([height](int, int) { return height; });
    }

    Terrain& ground(const Heights& heights, int pixels = 512)
    {
        const DataScratch folder;
        folder.writeTga("Textures/map.tga", pixels, pixels, 1, [&heights](int x, int y, int) { return heights(x, y); });
        return *manager.createTerrain();
    }

    /// A car at rest there, upright and facing +z.
    VehicleHandle& carAt(const glm::vec3& position)
    {
        VehicleHandle& car = *manager.createVehicle();
        car.placeAt(position);
        return car;
    }

    PhysicNode& ballAt(const glm::vec3& position, const glm::vec3& velocity = glm::vec3(0))
    {
        PhysicNode& ball = *manager.createBall();
        ball.setPosition(position.x, position.y, position.z);
        ball.setLinearVelocity(velocity);
        return ball;
    }

    /// One pass: vehicles, then the scene.
    void pass()
    {
        manager.updateVehicles(kGameDelta, physx::PxVec3(0, -9.81f, 0));
        manager.step(kGameDelta);
    }

    /// Passes until the predicate holds; false when it does not within maxPasses. `each` runs before every pass.
    bool runUntil(
        int maxPasses, const std::function<bool()>& predicate, const std::function<void()>& each = [] {})
    {
        for (int i = 0; i < maxPasses; ++i) {
            if (predicate()) return true;
            each();
            pass();
        }
        return predicate();
    }

    /// That many seconds by the clock on the wall. `each` runs before every pass.
    void runSeconds(
        float seconds, const std::function<void()>& each = [] {})
    {
        runUntil(
            static_cast<int>(std::lround(seconds / kPassSeconds)), [] { return false; }, each);
    }

    static glm::vec3 positionOf(const VehicleHandle& car)
    {
        const physx::PxVec3 p = car.getActor()->getGlobalPose().p;
        return {p.x, p.y, p.z};
    }

    /// Which way the car's nose points.
    static glm::vec3 forwardOf(const VehicleHandle& car)
    {
        const physx::PxVec3 d = car.getActor()->getGlobalPose().q.getBasisVector2();
        return {d.x, d.y, d.z};
    }

    PhysxManager& manager;
};
