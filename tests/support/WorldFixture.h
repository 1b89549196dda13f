#pragma once

#include "physics/DrivingControls.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "physics/Terrain.h"
#include "physics/VehicleHandle.h"

#include <PxPhysicsAPI.h>
#include <glm/glm.hpp>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

/// A physics world for one test: ground, cars and balls in a line each, and passes as the game makes them at 120 a second.
/// One at a time; the world goes with it.
class WorldFixture {
public:
    using Heights = std::function<int(int x, int y)>; ///< height byte of pixel (x, y), y from the bottom row up

    static constexpr float kPassSeconds = 1.0f / 120.0f; ///< real time of a pass
    static constexpr float kGameDelta = 3 * kPassSeconds; ///< game time of a pass

    explicit WorldFixture(physx::PxSimulationEventCallback* contacts = nullptr) : manager(*PhysxManager::getInstance(contacts)) {}
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
        return terrainOf(greyPicture(heights, pixels));
    }

    /// The terrain that a Textures/map.tga of these bytes gives; no file at all for no bytes.
    Terrain& terrainOf(const std::string& heightImage)
    {
        namespace fs = std::filesystem;
        const fs::path before = fs::current_path();
        const fs::path folder = fs::temp_directory_path() / ("quackdash-world-" + std::to_string(getpid()));
        fs::create_directories(folder / "Textures");
        if (!heightImage.empty()) std::ofstream(folder / "Textures/map.tga", std::ios::binary) << heightImage;
        fs::current_path(folder);
        Terrain& terrain = *manager.createTerrain();
        fs::current_path(before);
        fs::remove_all(folder);
        return terrain;
    }

    /// The bytes of a square grey TGA picture, bottom row first.
    static std::string greyPicture(const Heights& heights, int pixels)
    {
        const auto low = static_cast<char>(pixels & 0xFF), high = static_cast<char>(pixels >> 8);
        std::string bytes{0, 0, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, low, high, low, high, 8, 0};
        for (int y = 0; y < pixels; ++y) {
            for (int x = 0; x < pixels; ++x) bytes.push_back(static_cast<char>(heights(x, y)));
        }
        return bytes;
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
    bool runUntil(int maxPasses, const std::function<bool()>& predicate, const std::function<void()>& each = [] {})
    {
        for (int i = 0; i < maxPasses; ++i) {
            if (predicate()) return true;
            each();
            pass();
        }
        return predicate();
    }

    /// That many seconds by the clock on the wall. `each` runs before every pass.
    void runSeconds(float seconds, const std::function<void()>& each = [] {})
    {
        runUntil(static_cast<int>(seconds / kPassSeconds + 0.5f), [] { return false; }, each);
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
