#include "match/ViewportLayout.h"
#include "testing/HeadlessMatch.h"

#include <gtest/gtest.h>

namespace {

class MatchRulesTest : public testing::Test {
protected:
    HeadlessMatch match;
};

TEST_F(MatchRulesTest, EqualScoresShareARank)
{
    const int scores[] = {2, 7, 2, 0};
    const int ranks[] = {2, 1, 2, 4};
    for (const int score : scores) match.join().addScore(score);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(match.rules.getRank(*match.rules.getPlayers()[i]), ranks[i]) << "player " << i;
}

TEST_F(MatchRulesTest, WhoFallsOffTheWorldDiesAndComesBackFromAbove)
{
    const Player& other = match.join();
    Player& falling = match.join();
    falling.takeDamage(60);
    match.place(falling, {0, -29.9f, 400}); // beyond the ground's edge, just above the limit
    match.pass();
    EXPECT_EQ(falling.getDeaths(), 0);

    match.passes(30);
    EXPECT_EQ(falling.getDeaths(), 1);
    EXPECT_EQ(falling.getHealth(), 100);
    EXPECT_GT(falling.getHeight(), 0);
    EXPECT_EQ(other.getDeaths(), 0);
}

TEST_F(MatchRulesTest, PeopleShareTheWindowAndOneCellOfAnOddNumberIsFree)
{
    using Cells = std::vector<Viewport::Rect>; // every cell of the grid, the free one included
    const Cells quarters{{0, 384, 512, 384}, {512, 384, 512, 384}, {0, 0, 512, 384}, {512, 0, 512, 384}};
    const Cells sixths{{0, 384, 340, 384}, {340, 384, 340, 384}, {681, 384, 340, 384}, {0, 0, 340, 384},
        {340, 0, 340, 384}, {681, 0, 340, 384}};
    const Cells grids[kMaxHumanPlayers] = {
        {{0, 0, 1024, 768}}, {{0, 0, 512, 768}, {512, 0, 512, 768}}, quarters, quarters, sixths, sixths};
    for (const Cells& grid : grids) {
        match.join();
        match.rules.layoutViewports();
        Cells cells;
        for (const Player* player : match.rules.getPlayers()) cells.push_back(player->getViewport()->getRect());
        if (const auto free = match.rules.freeViewportRect()) cells.push_back(*free);
        EXPECT_TRUE(cells == grid) << match.rules.getHumanPlayerCount() << " players";
    }
}

} // namespace
