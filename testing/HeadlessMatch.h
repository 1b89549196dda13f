#pragma once

#include "match/MatchWorld.h"
#include "physics/PhysxManager.h"
#include "physics/VehicleHandle.h"
#include "platform/DataFolder.h"
#include "players/Player.h"
#include "testing/DataScratch.h"
#include "testing/ScriptedDevice.h"
#include "testing/ScriptedKeyboard.h"
#include "testing/SilentPresentation.h"
#include "testing/SteppedClock.h"

#include <deque>
#include <memory>

/// A whole match without a window: the real rules, physics, ground and scene, a keyboard to hold keys on and a clock
/// that runs only when passes are made. The physics world goes with it.
class HeadlessMatch {
public:
    enum class Ground {
        kGame, ///< the game's own height picture
        kFlat, ///< flat, eight units below where cars enter
    };

    /// passSeconds: see SteppedClock.
    explicit HeadlessMatch(Ground ground = Ground::kGame, double passSeconds = 0)
        : clock(passSeconds), world(createWorld(ground))
    {
        FrameTimer::getInstance()->tick();
    }
    HeadlessMatch(const HeadlessMatch&) = delete;
    HeadlessMatch& operator=(const HeadlessMatch&) = delete;

    /// Have a person with a scripted device of their own join.
    Player& join()
    {
        rules.addPlayer(devices.emplace_back());
        graph.update();
        return *rules.getPlayers().back();
    }
    static ScriptedDevice& deviceOf(const Player& player) { return static_cast<ScriptedDevice&>(player.getDevice()); }

    Player& addComputerPlayer()
    {
        rules.addComputerPlayer();
        graph.update();
        return *rules.getActors().back();
    }

    /// Put a car there, upright and facing +z.
    void place(Player& player, const glm::vec3& position)
    {
        player.getVehicle()->placeAt(position);
        graph.update();
    }

    /// Make one pass of the match as the main loop does.
    void pass()
    {
        presentation.lines.clear();
        FrameTimer::getInstance()->tick();
        rules.updateMatch();
        rules.stepPhysics();
        graph.update();
    }

    void passes(int count)
    {
        for (int i = 0; i < count; ++i) pass();
    }

    const Terrain& getTerrain() { return world->getGround(); }
    HitRecorder& getHits() { return world->getHits(); }

    ScriptedKeyboard keys;
    SteppedClock clock;
    SilentPresentation presentation;
    std::deque<ScriptedDevice> devices; // of those who joined

private:
    /// Takes the physics world down as it goes: after the match, whose shots in flight give their bodies back to it.
    struct PhysicsEnd {
        ~PhysicsEnd() { delete PhysxManager::instance(); }
    };

    std::unique_ptr<MatchWorld> createWorld(Ground ground)
    {
        if (ground == Ground::kGame) {
            enterDataFolder();
            return std::make_unique<MatchWorld>(presentation);
        }
        constexpr int kHeightByte = 214; // 42 units
        const DataScratch scratch;
        scratch.writeTga("Textures/map.tga", 512, 512, 1, [](int, int, int) { return kHeightByte; });
        return std::make_unique<MatchWorld>(presentation);
    }

    PhysicsEnd physicsEnd;
    std::unique_ptr<MatchWorld> world;

public:
    Match& rules = world->getMatch();
    SceneGraph& graph = world->getScene();
};
