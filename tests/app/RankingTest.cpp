#include "app/match/Ranking.h"

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

class RankingStory : public testing::TestWithParam<std::vector<Scored>> {};

TEST_P(RankingStory, LeadersFollowTheScores)
{
    Ranking ranking;
    for (const Scored& scored : GetParam()) {
        SCOPED_TRACE(std::string(1, scored.player) + " has " + std::to_string(scored.score));
        EXPECT_EQ(ranking.update(playerOf(scored.player), scored.score), scored.changedFrom);
        for (int place = 0; place < Ranking::kPlaces; ++place) {
            const char letter = scored.leaders.at(static_cast<std::size_t>(place));
            EXPECT_EQ(ranking.getLeader(place), letter == '-' ? nullptr : playerOf(letter)) << "place " << place;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Stories, RankingStory,
    testing::Values(
        // The places fill up from below as the others trail.
        std::vector<Scored>{{'a', 5, 0, "a--"}, {'b', 3, 1, "ab-"}, {'c', 1, 2, "abc"}, {'d', 1, 3, "abc"}},
        // A tie overtakes nobody; one point more does.
        std::vector<Scored>{{'a', 1, 0, "a--"}, {'b', 1, 1, "ab-"}, {'c', 1, 2, "abc"}, {'b', 2, 0, "bac"}, {'a', 2, 3, "bac"}},
        // The second overtakes the first: the third keeps its place.
        std::vector<Scored>{{'a', 9, 0, "a--"}, {'b', 8, 1, "ab-"}, {'c', 7, 2, "abc"}, {'b', 10, 0, "bac"}},
        // The third overtakes both; then someone new, who pushes the last one out.
        std::vector<Scored>{{'a', 3, 0, "a--"}, {'b', 2, 1, "ab-"}, {'c', 1, 2, "abc"}, {'c', 9, 0, "cab"}, {'d', 20, 0, "dca"}},
        // Someone new takes the second place, then the third becomes second again.
        std::vector<Scored>{{'a', 9, 0, "a--"}, {'b', 4, 1, "ab-"}, {'c', 6, 1, "acb"}, {'b', 7, 1, "abc"}},
        // A leader who scores moves nobody, but raises the bar.
        std::vector<Scored>{{'a', 1, 0, "a--"}, {'a', 9, 3, "a--"}, {'b', 5, 1, "ab-"}, {'b', 6, 3, "ab-"}, {'c', 6, 2, "abc"}}));

TEST(Ranking, KnowsEachLeadersPlaceAndScore)
{
    Ranking ranking;
    ranking.update(playerOf('a'), 5);
    ranking.update(playerOf('b'), 7);

    EXPECT_EQ(ranking.getPlace(playerOf('b')), 0);
    EXPECT_EQ(ranking.getPlace(playerOf('a')), 1);
    EXPECT_EQ(ranking.getPlace(playerOf('c')), Ranking::kPlaces);
    EXPECT_EQ(ranking.getScore(0), 7);
    EXPECT_EQ(ranking.getScore(1), 5);
    EXPECT_EQ(ranking.getScore(2), 0);
}

} // namespace
