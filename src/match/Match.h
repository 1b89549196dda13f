#pragma once

#include "match/Hats.h"
#include "match/Ranking.h"
#include "players/IMatch.h"
#include "players/PlayerColours.h"
#include "scene/Viewport.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

class AIPlayer;
class Ball;
class HitRecorder;
class InputDevice;
class IPresentation;
class Terrain;

/// The rule book and the lists of participants, without window and GL. Owned by a MatchWorld.
///
/// Participants join at any time; each frame of the match updateMatch(), then stepPhysics(), then an update of the
/// scene graph.
class Match final : public IMatch {
public:
    /// All borrowed: the scene that cars and balls join, how the match is seen and heard, the ground that is played on,
    /// whose size is how far shots may fly, and the receiver of the physics world's contacts.
    Match(SceneGraph& scene, IPresentation& presentation, const Terrain& ground, HitRecorder& hits,
        const PlayerColours& colours);
    ~Match();
    Match(const Match&) = delete;
    Match& operator=(const Match&) = delete;

    /// Have a human player join, driven by the device (borrowed), who is called by that name, or else by the device's.
    /// At most six.
    void addPlayer(InputDevice& device, const std::string& name = {});

    /// Have a computer player join. People add at most ten; the physics world has room for sixteen cars in all.
    void addComputerPlayer();

    /// Play one frame of the match: every participant drives and shoots, who fell off the world respawns, labels are
    /// written; the hits of the physics step before are resolved, spent balls removed, the hats moved.
    void updateMatch();

    /// Advance vehicles and bodies by one frame of game time.
    void stepPhysics();

    /// Write every car's sign into a view, after the scene's update.
    void writeSigns(const Viewport& view);

    /// Give each human player's viewport its cell of the split screen.
    void layoutViewports();

    /// Return the cell of the split screen that no player uses, in pixels; nothing when all are used.
    std::optional<Viewport::Rect> freeViewportRect() const;

    std::vector<Player*> getPlayers() const { return players; }      ///< the human players, in order of joining
    const std::vector<Player*>& getActors() const { return actors; } ///< every participant, in order of joining
    const Ranking& getRanking() const { return ranking; }
    const Hats& getHats() const { return hats; }
    const std::vector<std::unique_ptr<Ball>>& getBalls() const { return balls; } ///< the shots in flight, oldest first

    int getActorCount() const override { return static_cast<int>(actors.size()); }
    int getHumanPlayerCount() const override { return static_cast<int>(players.size()); }
    int computerPlayerCount() const override { return static_cast<int>(computerPlayers.size()); }
    const IPilot& getPilot(int number) const override;
    int getFieldSize() const override;
    int getRank(const Player& player) const override;
    void addBall(Player* shooter) override;
    SceneGraph* getSceneGraph() const override { return &scene; }

private:
    void updateParticipants();
    void resolveHits();
    void resolveHit(Player& victim, const Ball& ball);
    int killBonus(const Player& victim) const;
    void updateRanking(Player& shooter);
    void removeSpentBalls();
    bool hasLeftPlay(const Ball& ball) const;

    SceneGraph& scene;
    IPresentation& presentation;
    const Terrain& ground;
    HitRecorder& hits;
    const PlayerColours colours;
    std::vector<Player*> actors;
    std::vector<Player*> players;
    std::vector<AIPlayer*> computerPlayers;
    std::vector<std::unique_ptr<Ball>> balls;
    Ranking ranking;
    Hats hats;
};
