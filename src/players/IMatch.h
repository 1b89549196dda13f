#pragma once

class Player;
class SceneGraph;

/// What a participant asks of the match that it takes part in. The match implements it; it outlives every participant.
class IMatch {
public:
    virtual int getActorCount() const = 0;       ///< participants that have joined so far
    virtual int getHumanPlayerCount() const = 0; ///< human players among them

    /// 1 + the number of players with a strictly greater score.
    virtual int getRank(const Player& player) const = 0;

    virtual SceneGraph* getSceneGraph() const = 0;

protected:
    ~IMatch() = default;
};
