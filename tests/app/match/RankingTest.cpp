#include "app/match/Ranking.h"
#include "support/FlatMatch.h"
#include "support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// Four players, A to D, and a ranking that hears of their scores.
class RankingTest : public testing::Test, public FlatMatch {
protected:
    RankingTest()
    {
        for (ScriptedDevice& device : devices) match.addPlayer(device);
    }

    int score(char who, int points) { return ranking.update(player(who), points); }

    Player* player(char who) const { return match.rules.getPlayers()[static_cast<std::size_t>(who - 'A')]; }

    /// The leaders and the scores kept for them, e.g. "B5 A3 -0".
    std::string leaders() const
    {
        std::string text;
        for (int place = 0; place < Ranking::kPlaces; ++place) {
            char name = '-';
            for (const char who : {'A', 'B', 'C', 'D'}) {
                if (ranking.getLeader(place) == player(who)) name = who;
            }
            text += (place ? " " : "") + std::string(1, name) + std::to_string(ranking.getScore(place));
        }
        return text;
    }

    std::array<ScriptedDevice, 4> devices;
    Ranking ranking;
};

} // namespace

TEST_F(RankingTest, FollowsTheScores)
{
    struct Step {
        char who;
        int points;
        int changedFrom; // best place with a new holder; 3: none
        const char* leaders;
    };
    const Step steps[] = {
        {'A', 1, 0, "A1 -0 -0"},
        {'A', 2, 3, "A2 -0 -0"}, // leads already
        {'B', 2, 1, "A2 B2 -0"}, // a tie does not overtake
        {'C', 1, 2, "A2 B2 C1"},
        {'D', 1, 3, "A2 B2 C1"}, // a tie with the third
        {'D', 2, 2, "A2 B2 D2"},
        {'B', 3, 0, "B3 A2 D2"}, // the second overtakes: the third stays
        {'D', 4, 0, "D4 B3 A2"}, // the third overtakes: the others move down
        {'C', 9, 0, "C9 D4 B3"}, // from outside: the third drops out
        {'B', 4, 3, "C9 D4 B4"}, // a tie with the second only raises the own score
        {'B', 5, 1, "C9 B5 D4"},
        {'A', 4, 3, "C9 B5 D4"},
        {'A', 6, 1, "C9 A6 B5"},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(testing::Message() << step.who << " reaches " << step.points);
        EXPECT_EQ(score(step.who, step.points), step.changedFrom);
        ASSERT_EQ(leaders(), step.leaders);
    }
    EXPECT_EQ(ranking.getPlace(player('C')), 0);
    EXPECT_EQ(ranking.getPlace(player('B')), 2);
    EXPECT_EQ(ranking.getPlace(player('D')), Ranking::kPlaces);
}
