#pragma once

#include "base/SteppedClock.h"
#include "match/BareMatch.h"
#include "physics/VehicleHandle.h"
#include "platform/DataFolder.h"
#include "players/Player.h"
#include "testing/ScriptedDevice.h"
#include "testing/ScriptedKeyboard.h"
#include "testing/SilentPresentation.h"

#include <PxRigidDynamic.h>

#include <deque>

/// A whole match without a window: the real rules, physics, ground and scene, a keyboard to hold keys on and a clock
/// that runs only when passes are made. The physics world goes with it.
class HeadlessMatch {
public:
    HeadlessMatch() { FrameTimer::getInstance()->tick(); }

    /// Have a person with a scripted device of their own join.
    Player& join()
    {
        rules.addPlayer(devices.emplace_back());
        graph.update();
        return *rules.getActors().back();
    }

    void addComputerPlayer()
    {
        rules.addComputerPlayer();
        graph.update();
    }

    /// Put a car there, upright and at rest, turned that far from +z towards +x.
    void place(Player& player, const glm::vec3& position, float degrees = 0)
    {
        const physx::PxQuat heading(glm::radians(degrees), physx::PxVec3(0, 1, 0));
        player.getVehicle()->placeAt(position);
        player.getVehicle()->getActor()->setGlobalPose({{position.x, position.y, position.z}, heading});
        graph.update();
    }

    /// Make passes of the match as the main loop does.
    void pass(int count = 1)
    {
        for (int i = 0; i < count; ++i) {
            update();
            match.step();
        }
    }

    /// Make the part of a pass in which no body moves.
    void update()
    {
        presentation.sounds.clear();
        FrameTimer::getInstance()->tick();
        rules.updateMatch();
    }

    ScriptedKeyboard keys;
    SteppedClock clock;
    SilentPresentation presentation;
    std::deque<ScriptedDevice> devices; // of those who joined

private:
    bool foundData = enterDataFolder(); // the ground's picture among it
    BareMatch match{presentation};

public:
    MatchWorld& world = match.getWorld();
    Match& rules = match.getMatch();
    SceneGraph& graph = match.getScene();
};
