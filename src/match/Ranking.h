#pragma once

#include <array>

class Player;

/// The three leaders of the match and the scores with which they took their places. Only scoring changes it; an equal
/// score does not overtake.
class Ranking {
public:
    static constexpr int kPlaces = 3;

    /// Note that the player has that score now. Return the best place, 0 to 2, from which on the holders have changed,
    /// or kPlaces when all leaders are where they were.
    int update(Player* player, int score);

    /// Return who holds a place, 0 to 2; null while it is vacant.
    Player* getLeader(int place) const { return places.at(static_cast<std::size_t>(place)).player; }

    /// Return the player's place, 0 to 2, or kPlaces for anyone else.
    int getPlace(const Player* player) const;

private:
    struct Place {
        Player* player = nullptr;
        int score = 0;
    };

    std::array<Place, kPlaces> places;
};
