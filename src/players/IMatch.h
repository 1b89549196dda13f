#pragma once

#include "input/IPilot.h"

class Player;
class SceneGraph;

/// What a participant asks of the match that it takes part in. The match implements it; it outlives every participant.
class IMatch : public IHunt {
public:
    virtual int getActorCount() const = 0;       ///< participants that have joined so far
    virtual int getHumanPlayerCount() const = 0; ///< human players among them
    virtual int getComputerPlayerCount() const = 0;

    /// Launches a shot of that player's.
    virtual void addBall(Player* shooter) = 0;

    /// 1 + the number of players with a strictly greater score.
    virtual int getRank(const Player& player) const = 0;

    virtual SceneGraph* getSceneGraph() const = 0;

protected:
    ~IMatch() = default;
};
