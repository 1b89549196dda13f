#include "match/Ranking.h"

#include <algorithm>

int Ranking::update(Player* player, int score)
{
    const auto reached =
        std::find_if(places.begin(), places.end(), [score](const Place& place) { return score > place.score; });
    const auto held =
        std::find_if(places.begin(), places.end(), [player](const Place& place) { return place.player == player; });
    if (reached == places.end() || held < reached) return kPlaces;
    if (held == reached) {
        held->score = score;
        return kPlaces;
    }

    // Everybody from the reached place on moves down by one: up to the place that falls vacant, or out of the list.
    const auto vacated = held == places.end() ? places.end() - 1 : held;
    std::move_backward(reached, vacated, vacated + 1);
    *reached = {player, score};
    return static_cast<int>(reached - places.begin());
}

int Ranking::getPlace(const Player* player) const
{
    const auto held =
        std::find_if(places.begin(), places.end(), [player](const Place& place) { return place.player == player; });
    return static_cast<int>(held - places.begin());
}
