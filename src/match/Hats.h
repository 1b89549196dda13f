#pragma once

#include <array>

class Node;
class Player;

/// The nodes of the three leaders' hats. They are in no tree until there is a leader; then each rides on its wearer's
/// chassis. Pictures are hung on the animation nodes by whoever has them. Owned by the match.
class Hats {
public:
    static constexpr int kCount = 3; ///< gold, silver, bronze

    Hats();

    Node* getNode(int place) const { return hats.at(static_cast<std::size_t>(place)); }
    Node* getAnimationNode(int place) const { return animations.at(static_cast<std::size_t>(place)); }

    /// Take a hat from whoever wears it and put it on the player's head.
    void give(int place, const Player& player);

    /// Move the hats up and down on their heads; milliseconds of the frame timer.
    void bob(double milliseconds);

private:
    std::array<Node*, kCount> hats;
    std::array<Node*, kCount> animations;
};
