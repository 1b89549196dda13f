#pragma once

#include "match/Hats.h"
#include "match/Ranking.h"
#include "players/IMatch.h"
#include "scene/Viewport.h"

#include <PxSimulationEventCallback.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class Actor;
class AIPlayer;
class Ball;
class InputDevice;
class IStage;
class Terrain;

/// The rule book and the lists of participants, without window and GL.
///
/// The game derives from it; a test or a benchmark uses it as it is. setWorld() first, then players may join; each
/// frame of the match updateMatch(), then stepPhysics(), then an update of the scene graph. The physics scene reports
/// contacts to it.
class MatchRules : public physx::PxSimulationEventCallback, public IMatch {
public:
    MatchRules();
    ~MatchRules() override;

    /// What the match is played in; borrowed. Creates the physics world, with this as its contact receiver, if there is
    /// none yet.
    void setWorld(SceneGraph* sceneGraph, IStage* stage);

    /// Has a human player join, driven by the device (borrowed). At most six.
    void addPlayer(InputDevice* device);

    /// The ground that is played on; borrowed. Its size is how far shots may fly. Before the first updateMatch().
    void setTerrain(const Terrain* ground) { terrain = ground; }

    /// Has a computer player join. People add at most ten; the physics world has room for sixteen cars in all.
    void addComputerPlayer();

    /// One frame of the match: every participant drives and shoots, who fell off the world respawns, labels are
    /// written; the hits of the physics step before are resolved, spent balls removed, the hats moved.
    void updateMatch();

    /// Advances vehicles and bodies by one frame of game time.
    void stepPhysics();

    /// Gives each human player's viewport its cell of the split screen.
    void layoutViewports();

    /// The cell of the split screen that no player uses, in pixels; nothing when all are used.
    std::optional<Viewport::Rect> freeViewportRect() const;

    std::vector<Player*> getPlayers() const { return players; }     ///< the human players, in order of joining
    const std::vector<Actor*>& getActors() const { return actors; } ///< every participant, in order of joining
    const Ranking& getRanking() const { return ranking; }
    const Hats& getHats() const { return hats; }
    const std::vector<std::unique_ptr<Ball>>& getBalls() const { return balls; } ///< the shots in flight

    int getActorCount() const override { return static_cast<int>(actors.size()); }
    int getHumanPlayerCount() const override { return static_cast<int>(players.size()); }
    int getComputerPlayerCount() const override { return static_cast<int>(computerPlayers.size()); }
    int getRank(const Player& player) const override;
    void addBall(Player* shooter) override;
    const IPilot* findTarget(const IPilot& hunter, const IPilot* excluded) const override;
    SceneGraph* getSceneGraph() const override { return sceneGraph; }

    void onConstraintBreak(physx::PxConstraintInfo*, physx::PxU32) override {}
    void onWake(physx::PxActor**, physx::PxU32) override {}
    void onSleep(physx::PxActor**, physx::PxU32) override {}
    void onContact(const physx::PxContactPairHeader& header, const physx::PxContactPair* pairs,
        physx::PxU32 count) override;
    void onTrigger(physx::PxTriggerPair*, physx::PxU32) override {}
    void onAdvance(const physx::PxRigidBody* const*, const physx::PxTransform*, physx::PxU32) override {}

protected:
    /// Removes the shots in flight. For a game whose stage goes before the rules do: shots have their pictures from it.
    void removeShots();

private:
    void updateParticipants();
    void resolveHits();
    void resolveHit(Player& victim, const Ball& ball);
    int killBonus(const Player& victim) const;
    void updateRanking(Player& shooter);
    void removeSpentBalls(const std::vector<Ball*>& spent);
    bool hasLeftPlay(const Ball& ball) const;
    void recordTouch(const physx::PxContactPairHeader& header);
    Ball* findBall(const physx::PxActor* body) const;
    bool isInPlay(const Ball* ball) const;

    SceneGraph* sceneGraph = nullptr;
    IStage* stage = nullptr;
    std::vector<Actor*> actors;
    std::vector<Player*> players;
    std::vector<AIPlayer*> computerPlayers;
    std::vector<std::unique_ptr<Ball>> balls;
    std::vector<std::pair<Player*, Ball*>>
        ballHits; // victim and ball, reported by the physics step and not yet resolved
    Ranking ranking;
    Hats hats;
    const Terrain* terrain = nullptr;
};
