#pragma once

#include "input/IPilot.h"

class Player;
class SceneGraph;

/// What a participant asks of the match that it takes part in. The match implements it and outlives every participant.
class IMatch : public IField {
public:
    virtual int getHumanPlayerCount() const = 0; ///< human players that have joined so far
    virtual int computerPlayerCount() const = 0; ///< computer players that have joined so far

    /// Launch a shot of that player's.
    virtual void addBall(Player* shooter) = 0;

    /// Return 1 + the number of players with a strictly greater score.
    virtual int getRank(const Player& player) const = 0;

    virtual SceneGraph* getSceneGraph() const = 0;

protected:
    ~IMatch() = default;
};
