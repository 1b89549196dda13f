#include "base/FrameTimer.h"
#include "physics/PhysicNode.h"
#include "players/Ball.h"
#include "testing/HeadlessMatch.h"
#include "testing/Near.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

namespace {

constexpr int kParticipants = 5;
constexpr int kMatchPasses = 90 * 120; // a minute and a half
constexpr int kDamage = 20, kFullHealth = 100;

/// One person, who drives in circles and always shoots, among computer players. After every pass the books must
/// balance.
class WholeMatch : public testing::Test {
protected:
    WholeMatch()
    {
        std::srand(1);
        players.push_back(&match.join());
        ScriptedDevice& device = HeadlessMatch::deviceOf(*players[0]);
        device.axes[InputDevice::kThrottleAxis] = 1;
        device.axes[InputDevice::kSteeringAxis] = 0.5f;
        device.buttons[InputDevice::kShoot] = true;
        while (players.size() < kParticipants) players.push_back(&match.addComputerPlayer());
        last = books();
    }

    struct Books {
        std::vector<int> health, deaths, scores;
        std::vector<int> places; // in the ranking; Ranking::kPlaces: none
        int ducks = 0;           // every hit quacks, and so does every respawn
    };

    Books books() const
    {
        Books now;
        for (const Player* player : players) {
            now.health.push_back(player->getHealth());
            now.deaths.push_back(player->getDeaths());
            now.scores.push_back(player->getScore());
            now.places.push_back(match.rules.getRanking().getPlace(player));
        }
        now.ducks = match.presentation.count("duck");
        return now;
    }

    static int sum(const std::vector<int>& numbers) { return std::accumulate(numbers.begin(), numbers.end(), 0); }

    /// What the last pass brought: hits, points and deaths fit together, and who died is back.
    void checkHits()
    {
        const Books now = books();
        const int died = sum(now.deaths) - sum(last.deaths);
        const int hit = now.ducks - last.ducks - died;
        const int points = sum(now.scores) - sum(last.scores);
        const int healthLost = sum(last.health) - sum(now.health) + kFullHealth * died;
        EXPECT_EQ(healthLost, kDamage * hit);
        EXPECT_TRUE(died > 0 || points == hit) << points << " points for " << hit << " hits";
        for (std::size_t i = 0; i < players.size(); ++i) {
            if (now.deaths[i] > last.deaths[i]) checkDeath(*players[i], hit == 1 ? points : 0, last.places[i]);
        }
        hits += hit;
        deaths += died;
        last = now;
    }

    /// points: of the one hit that killed; 0 when several hits make it unclear.
    void checkDeath(const Player& victim, int points, int place)
    {
        const int bonus[] = {8, 7, 6, 5};
        EXPECT_TRUE(points == 0 || points == 1 + bonus[place]) << points << " points for one in place " << place + 1;
        EXPECT_EQ(victim.getHealth(), kFullHealth);
        EXPECT_NEAR(victim.getHeight(), 50, 1) << "back from above";
    }

    void checkHats()
    {
        std::vector<int> best = last.scores;
        std::sort(best.begin(), best.end(), std::greater<>());
        for (int place = 0; place < Ranking::kPlaces; ++place) {
            const Player* leader = match.rules.getRanking().getLeader(place);
            const Node* wearer = match.rules.getHats().getNode(place)->getParent();
            ASSERT_EQ(wearer, leader ? leader->getChassisNode() : nullptr) << "hat " << place + 1;
            ASSERT_EQ(leader ? leader->getScore() : 0, best.at(static_cast<std::size_t>(place)))
                << "leader " << place + 1;
        }
    }

    /// A point (x, y, z) of the golden hat comes to ((x - 0.1) / 2, (z + 7.3) / 2, (1 - y) / 2) of the car, z raised by
    /// the bobbing.
    void checkGoldenHatSitsOnItsHead()
    {
        const Player* leader = match.rules.getRanking().getLeader(0);
        if (!leader) return;
        const glm::vec4 point(0.4f, 0.6f, -4, 1);
        const auto bob = static_cast<float>(std::sin(FrameTimer::getInstance()->getTimeMs() / 450.0));
        const glm::vec4 seen = match.rules.getHats().getAnimationNode(0)->getWorldTransform() * point;
        const glm::vec3 inCar(glm::inverse(leader->getChassisTransform()) * seen);
        ASSERT_TRUE(isNear(inCar, glm::vec3((point.x - 0.1f) / 2, (point.z + bob + 7.3f) / 2, (1 - point.y) / 2),
            0.01f));
    }

    /// The scene shows exactly the shots in flight.
    void checkBalls()
    {
        const std::vector<Node*>& nodes = match.graph.getRoot()->getChildren();
        const auto shown =
            std::count_if(nodes.begin(), nodes.end(), [](const Node* node) { return node->getName() == "Ball"; });
        ASSERT_EQ(static_cast<std::size_t>(shown), match.rules.getBalls().size());
        for (const auto& ball : match.rules.getBalls()) ASSERT_LT(ball->getAge(), Ball::kLifetime + 10);
    }

    HeadlessMatch match;
    std::vector<Player*> players;
    Books last;
    int hits = 0, deaths = 0;
};

TEST_F(WholeMatch, KeepsItsBooksItsHatsAndItsScene)
{
    for (int pass = 0; pass < kMatchPasses && !HasFailure(); ++pass) {
        SCOPED_TRACE("pass " + std::to_string(pass));
        match.pass();
        checkHits();
        checkHats();
        checkGoldenHatSitsOnItsHead();
        checkBalls();
    }

    // It was a match worth the name.
    const int shots = match.presentation.count("bang");
    EXPECT_GT(shots, 100);
    EXPECT_GT(hits, 30);
    EXPECT_GT(deaths, 3);
    EXPECT_LT(match.rules.getBalls().size(), static_cast<std::size_t>(shots) / 2) << "spent shots are gone";
    EXPECT_NE(match.rules.getRanking().getLeader(2), nullptr);
}

} // namespace
