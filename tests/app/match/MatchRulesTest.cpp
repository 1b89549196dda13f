#include "physics/VehicleHandle.h"
#include "support/FlatMatch.h"
#include "support/ScriptedDevice.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

#include <array>

namespace {

class MatchRulesTest : public testing::Test, public FlatMatch {
protected:
    void join(int players)
    {
        for (int i = 0; i < players; ++i) match.addPlayer(devices.at(static_cast<std::size_t>(i)));
    }

    Player& player(std::size_t i) { return *match.rules.getPlayers().at(i); }

    std::array<ScriptedDevice, 6> devices;
};

} // namespace

TEST_F(MatchRulesTest, RanksByTheNumberOfStrictlyBetterPlayers)
{
    join(5);
    const int scores[] = {3, 7, 3, 0, 7}, ranks[] = {3, 1, 3, 5, 1};
    for (std::size_t i = 0; i < 5; ++i) player(i).addScore(scores[i]);
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(match.rules.getRank(player(i)), ranks[i]) << "player " << i;
}

TEST_F(MatchRulesTest, WhoFallsOffTheWorldDiesAndRespawns)
{
    join(2);
    player(0).addScore(2);
    player(0).takeDamage(40);
    const auto passFrom = [&](float height) {
        player(0).getVehicle()->placeAt({0, height, 0});
        match.graph.update();
        match.pass();
    };
    passFrom(-29.9f);
    EXPECT_EQ(player(0).getDeaths(), 0) << "still within the world";

    passFrom(-30.1f);
    EXPECT_EQ(player(0).getDeaths(), 1);
    EXPECT_EQ(player(0).getHealth(), 100);
    EXPECT_EQ(player(0).getScore(), 2);
    match.passes(3);
    EXPECT_EQ(player(0).getDeaths(), 1) << "one fall, one death";
    EXPECT_GT(player(0).getHeight(), 49);
    EXPECT_EQ(player(1).getDeaths(), 0);
}

TEST_F(MatchRulesTest, ACarDrivenOverTheEdgeComesBack)
{
    join(1);
    match.passes(240);
    player(0).getVehicle()->placeAt({0, 41.2f, 240});
    devices[0].axes = {1, 0, 0, 0};
    match.passes(600);
    EXPECT_EQ(player(0).getDeaths(), 1);
    EXPECT_GT(player(0).getHeight(), 40);
}

TEST_F(MatchRulesTest, UpdatesEveryParticipantOnceAPassAndWritesTheirLabels)
{
    join(3);
    match.rules.layoutViewports();
    player(1).addScore(1);
    match.passes(2);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(devices[i].updates, 2);
    ASSERT_EQ(match.stage.lines.size(), 6u);
    EXPECT_EQ(match.stage.lines[0].text, "Pl. 2 (0)");
    EXPECT_EQ(match.stage.lines[2].text, "Pl. 1 (1)");
    EXPECT_NEAR(match.stage.lines[2].x, 0.05, 1e-9) << "the second player's viewport is the right one";
    EXPECT_EQ(match.rules.getActors().size(), 3u);
}

TEST_F(MatchRulesTest, LaysOutViewportsAndTellsTheFreeCell)
{
    struct Free {
        bool exists;
        int x, width;
    };
    const Free free[] = {{false, 0, 0}, {false, 0, 0}, {true, 512, 512}, {false, 0, 0}, {true, 681, 340}, {false, 0, 0}};
    for (std::size_t count = 1; count <= 6; ++count) {
        SCOPED_TRACE(count);
        match.addPlayer(devices[count - 1]);
        match.rules.layoutViewports();
        const std::optional<Viewport::Rect> cell = match.rules.freeViewportRect();
        ASSERT_EQ(cell.has_value(), free[count - 1].exists);
        if (!cell) continue;
        EXPECT_EQ(cell->x, free[count - 1].x);
        EXPECT_EQ(cell->width, free[count - 1].width);
        EXPECT_EQ(cell->y, 0);
        EXPECT_EQ(cell->height, 384);
    }
    EXPECT_EQ(player(4).getViewport()->getRect().x, 340);
    EXPECT_EQ(player(4).getViewport()->getRect().y, 0);
    EXPECT_EQ(player(0).getViewport()->getRect().y, 384);
}
