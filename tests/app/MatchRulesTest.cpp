#include "app/match/ViewportLayout.h"
#include "physics/VehicleHandle.h"
#include "support/HeadlessMatch.h"
#include "support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <array>

namespace {

class MatchRulesTest : public testing::Test {
protected:
    void join(int count)
    {
        for (int i = 0; i < count; ++i) match.addPlayer(devices.at(static_cast<std::size_t>(i)));
    }

    HeadlessMatch match;
    std::array<ScriptedDevice, kMaxHumanPlayers> devices;
};

TEST_F(MatchRulesTest, EqualScoresShareARank)
{
    join(4);
    const std::vector<Player*> players = match.rules.getPlayers();
    const int scores[] = {2, 7, 2, 0};
    const int ranks[] = {2, 1, 2, 4};
    for (std::size_t i = 0; i < players.size(); ++i) players[i]->addScore(scores[i]);
    for (std::size_t i = 0; i < players.size(); ++i) EXPECT_EQ(match.rules.getRank(*players[i]), ranks[i]) << "player " << i;
}

TEST_F(MatchRulesTest, EveryPassUpdatesEveryPlayerAndWritesItsLabel)
{
    join(2);
    match.pass();
    match.pass();

    EXPECT_EQ(devices[0].updates, 2);
    EXPECT_EQ(devices[1].updates, 2);
    EXPECT_EQ(match.stage.lines.size(), 4u) << "two lines for each of two players";
}

TEST_F(MatchRulesTest, WhoFallsOffTheWorldDiesAndComesBackFromAbove)
{
    join(2);
    Player& falling = *match.rules.getPlayers()[1];
    falling.takeDamage(60);
    falling.getVehicle()->placeAt(glm::vec3(0, -29.9f, 400)); // beyond the ground's edge, just above the limit
    match.graph.update();
    match.pass();
    EXPECT_EQ(falling.getDeaths(), 0);

    match.passes(30);
    EXPECT_EQ(falling.getDeaths(), 1);
    EXPECT_EQ(falling.getHealth(), 100);
    EXPECT_GT(falling.getHeight(), 0);
    EXPECT_EQ(match.rules.getPlayers()[0]->getDeaths(), 0);
}

TEST_F(MatchRulesTest, LayoutGivesEachPlayerItsCellAndFindsTheFreeOne)
{
    const int freeCellX[] = {-1, -1, 512, -1, 681, -1}; // -1: none free
    for (int count = 1; count <= kMaxHumanPlayers; ++count) {
        match.addPlayer(devices.at(static_cast<std::size_t>(count - 1)));
        match.rules.layoutViewports();
        for (int i = 0; i < count; ++i) {
            const Viewport::Rect& rect = match.rules.getPlayers().at(static_cast<std::size_t>(i))->getViewport()->getRect();
            EXPECT_TRUE(rect == viewportCell(count, i, 1024, 768)) << i << " of " << count;
        }

        const auto free = match.rules.freeViewportRect();
        EXPECT_EQ(free ? free->x : -1, freeCellX[count - 1]) << count << " players";
        EXPECT_EQ(free ? free->y : 0, 0) << count << " players";
    }
}

} // namespace
