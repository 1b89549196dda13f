#include "match/Ranking.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace {

/// Players are told apart by their address alone: 'a' to 'd' stand for four of them.
Player* playerOf(char letter)
{
    static std::array<char, 4> addresses;
    return reinterpret_cast<Player*>(&addresses.at(static_cast<std::size_t>(letter - 'a')));
}

struct Scored {
    char player;
    int score;
    int changedFrom;     // best place whose holder changed; 3 for none
    std::string leaders; // afterwards, first to third, '-' for a vacant place
};

struct Story {
    const char* what;
    std::vector<Scored> events;
};

TEST(Ranking, LeadersFollowTheScores)
{
    const Story stories[] = {{"the places fill up from below as the others trail",
                                 {{'a', 5, 0, "a--"}, {'b', 3, 1, "ab-"}, {'c', 1, 2, "abc"}, {'d', 1, 3, "abc"}}},
        {"a tie overtakes nobody; one point more does",
            {{'a', 1, 0, "a--"}, {'b', 1, 1, "ab-"}, {'c', 1, 2, "abc"}, {'b', 2, 0, "bac"}, {'a', 2, 3, "bac"}}},
        {"the second overtakes the first: the third keeps its place",
            {{'a', 9, 0, "a--"}, {'b', 8, 1, "ab-"}, {'c', 7, 2, "abc"}, {'b', 10, 0, "bac"}}},
        {"the third overtakes both; then someone new, who pushes the last one out",
            {{'a', 3, 0, "a--"}, {'b', 2, 1, "ab-"}, {'c', 1, 2, "abc"}, {'c', 9, 0, "cab"}, {'d', 20, 0, "dca"}}},
        {"someone new takes the second place, then the third becomes second again",
            {{'a', 9, 0, "a--"}, {'b', 4, 1, "ab-"}, {'c', 6, 1, "acb"}, {'b', 7, 1, "abc"}}},
        {"a leader who scores moves nobody, but raises the bar",
            {{'a', 1, 0, "a--"}, {'a', 9, 3, "a--"}, {'b', 5, 1, "ab-"}, {'b', 6, 3, "ab-"}, {'c', 6, 2, "abc"}}}};
    for (const Story& story : stories) {
        Ranking ranking;
        for (const Scored& scored : story.events) {
            SCOPED_TRACE(std::string(story.what) + ": " + scored.player + " has " + std::to_string(scored.score));
            EXPECT_EQ(ranking.update(playerOf(scored.player), scored.score), scored.changedFrom);
            for (int place = 0; place < Ranking::kPlaces; ++place) {
                const char letter = scored.leaders.at(static_cast<std::size_t>(place));
                EXPECT_EQ(ranking.getLeader(place), letter == '-' ? nullptr : playerOf(letter)) << "place " << place;
            }
            const std::size_t place = scored.leaders.find('c');
            EXPECT_EQ(ranking.getPlace(playerOf('c')),
                place == std::string::npos ? Ranking::kPlaces : static_cast<int>(place));
        }
    }
}

} // namespace
