#pragma once

#include "app/match/Ranking.h"
#include "players/IMatch.h"
#include "scene/Viewport.h"

#include <PxSimulationEventCallback.h>

#include <optional>
#include <vector>

class Actor;
class InputDevice;
class IStage;

/// The rule book and the lists of participants, without window and GL.
///
/// The game derives from it; a test or a benchmark uses it as it is. setWorld() first, then players may join; each frame of the match
/// updateMatch(), then stepPhysics(), then an update of the scene graph. The physics scene reports contacts to it.
class MatchRules : public physx::PxSimulationEventCallback, public IMatch {
public:
    virtual ~MatchRules() = default;

    /// What the match is played in; borrowed. Creates the physics world, with this as its contact receiver, if there is none yet.
    void setWorld(SceneGraph* sceneGraph, IStage* stage);

    /// Has a human player join, driven by the device (borrowed). At most six.
    void addPlayer(InputDevice* device);

    /// One frame of the match: every participant drives; who fell off the world respawns; labels are written.
    void updateMatch();

    /// Advances vehicles and bodies by one frame of game time.
    void stepPhysics();

    /// Gives each human player's viewport its cell of the split screen.
    void layoutViewports();

    /// The cell of the split screen that no player uses, in pixels; nothing when all are used.
    std::optional<Viewport::Rect> freeViewportRect() const;

    std::vector<Player*> getPlayers() const { return players; }       ///< the human players, in order of joining
    const std::vector<Actor*>& getActors() const { return actors; }   ///< every participant, in order of joining
    const Ranking& getRanking() const { return ranking; }

    int getActorCount() const override { return static_cast<int>(actors.size()); }
    int getHumanPlayerCount() const override { return static_cast<int>(players.size()); }
    int getRank(const Player& player) const override;
    SceneGraph* getSceneGraph() const override { return sceneGraph; }

    void onConstraintBreak(physx::PxConstraintInfo*, physx::PxU32) override {}
    void onWake(physx::PxActor**, physx::PxU32) override {}
    void onSleep(physx::PxActor**, physx::PxU32) override {}
    void onContact(const physx::PxContactPairHeader&, const physx::PxContactPair*, physx::PxU32) override {}
    void onTrigger(physx::PxTriggerPair*, physx::PxU32) override {}
    void onAdvance(const physx::PxRigidBody* const*, const physx::PxTransform*, physx::PxU32) override {}

private:
    SceneGraph* sceneGraph = nullptr;
    IStage* stage = nullptr;
    std::vector<Actor*> actors;
    std::vector<Player*> players;
    Ranking ranking;
};
