#include "physics/PhysicNode.h"
#include "players/Ball.h"
#include "testing/HeadlessMatch.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <sstream>
#include <tuple>

namespace {

using physx::PxPairFlag;

/// Five people, 'a' to 'e', in a world that stands still until a test makes passes: it says what touches what. 'A' is
/// the shot of 'a', fired when none is in flight.
class MatchTest : public testing::Test {
protected:
    MatchTest()
    {
        for (std::size_t i = 0; i < known.size(); ++i) match.join();
        outcome();
    }

    Player& player(int letter) { return *match.rules.getActors().at(static_cast<std::size_t>(letter - 'a')); }

    PhysicNode& shot(int letter)
    {
        for (const auto& ball : match.rules.getBalls())
            if (ball->getOwner() == &player(letter)) return *ball->getNode();
        match.rules.addBall(&player(letter));
        return shot(letter);
    }

    /// "b+3": points for b, "b-60": damage to it; "Ab": a touch begins, "Ab~": it goes on.
    void happen(const std::string& event)
    {
        if (event[1] == '+') return player(event[0]).addScore(std::stoi(event.substr(2)));
        if (event[1] == '-') return player(event[0]).takeDamage(std::stoi(event.substr(2)));
        physx::PxContactPairHeader header;
        for (const std::size_t i : {0u, 1u}) {
            const bool isShot = std::isupper(event[i]);
            header.actors[i] = isShot ? shot(std::tolower(event[i])).actor : player(event[i]).getVehicle()->getActor();
        }
        physx::PxContactPair touch;
        touch.events = event.size() > 2 ? PxPairFlag::eNOTIFY_TOUCH_PERSISTS : PxPairFlag::eNOTIFY_TOUCH_FOUND;
        match.world.getHits().onContact(header, &touch, 1);
    }

    /// What has changed since the last call, whom the hats ride and whose shots are in flight: "a+1 b=80 ca- A" where a
    /// has won a point, b has come to a health of 80, c wears gold and a silver.
    std::string outcome()
    {
        std::string text, leaders = "---";
        for (char name = 'a'; name <= 'e'; ++name) {
            const Player& now = player(name);
            auto& [score, health, deaths] = known.at(static_cast<std::size_t>(name - 'a'));
            if (now.getScore() != score) text += name + ('+' + std::to_string(now.getScore() - score)) + ' ';
            if (now.getHealth() != health) text += name + ('=' + std::to_string(now.getHealth())) + ' ';
            if (now.getDeaths() != deaths) text += name + std::string(" dies ");
            std::tie(score, health, deaths) = std::tuple(now.getScore(), now.getHealth(), now.getDeaths());
            for (int place = 0; place < Hats::kCount; ++place)
                if (match.rules.getHats().getNode(place)->getParent() == now.getChassisNode())
                    leaders[static_cast<std::size_t>(place)] = name;
        }
        for (const auto& ball : match.rules.getBalls()) leaders += {' ', "ABCDE"[ball->getOwner()->getNumber()]};
        return text + leaders;
    }

    HeadlessMatch match;
    std::array<std::tuple<int, int, int>, 5> known; // score, health and deaths at the last call of outcome()
};

TEST_F(MatchTest, TurnTouchesIntoDamagePointsDeathsHatsAndSpentShots)
{
    const struct {
        const char *events, *outcome, *what;
        int passes = 1;
    } rows[] = {
        {"Ab Ab bA", "a+1 b=80 a--", "a hit counts once"},
        {"ab Ab~ bA~", "a-- A", "no hits at all"},
        {"Ab Ac", "a+2 b=60 c=80 a--", "a shot that hits two in one pass"},
        {"Aa", "a+1 a=80 a--", "the shooter's own car"},
        {"b+3 Be", "b+4 e=80 ab-", "a tie with the first"},
        {"Be", "b+1 e=60 ba-", "the second overtakes"},
        {"Ce", "c+1 e=40 bac", "a third"},
        {"De", "d+1 e=20 bac", "a tie with the third"},
        {"De", "d+6 e=100 e dies dba", "a kill of somebody without a hat"},
        {"a-60 Ca", "a=100 a dies c+7 cdb", "of the third"},
        {"d-80 Bd", "b+8 d dies bcd", "of the second"},
        {"a+9 b-40 Ab", "a+18 b=100 b dies abc", "of the first, who loses that place by the hit's own point"},
        {"e-80 Ae Ce", "a+6 c+1 e=80 e dies abc", "two shots, of which the first one kills"},
        {"e-70 Ae", "a+6 e=100 e dies abc", "more damage than there is health"},
        {"e+10 Ed", "d=80 e+11 abe", "somebody new becomes the third"},
        {"c+5 Cd", "c+6 d=60 acb", "and somebody the second"},
        {"b+2 Bd", "b+3 d=40 abc", "whom the third overtakes"},
        {"Cd", "c+1 d=20 abc", "a tie with the second"},
        {"a+9 Ae", "a+10 e=80 abc", "the first gets away"},
        {"b+25 Be", "b+26 e=60 abc", "the second too, not so far"},
        {"c+20 Ce", "c+21 e=40 abc", "the third too, not so far"},
        {"e+20 Ea", "a=80 e+21 abc", "and the next one does not come up to it"},
        {"c+20 Cb", "b=80 c+21 cab", "the third overtakes both"},
        {"AB BA", "cab A B", "of two shots the first counts their touch, once a pass", 9},
        {"BA", "cab B", "the tenth touch"},
        {"AB", "cab A", "the older one is the other now", 10},
    };
    for (const auto& row : rows) {
        for (int pass = 0; pass < row.passes; ++pass) {
            std::istringstream events(row.events);
            for (std::string event; events >> event;) happen(event);
            match.update();
        }
        EXPECT_EQ(outcome(), row.outcome) << row.what;
    }
}

TEST_F(MatchTest, EndsShotsAfterFiveSecondsAndShotsAndCarsThatLeaveTheField)
{
    shot('a');
    const double fired = match.clock.now();
    for (int i = 0; i < 700 && outcome() == "--- A"; ++i) match.update();
    EXPECT_NEAR(match.clock.now() - fired, 5, 0.004);
    for (const glm::vec3& limit : {glm::vec3(276, 90, 0), {-276, 90, 0}, {0, 90, 276}, {0, 90, -276}, {0, -30, 0}}) {
        for (const float reach : {0.999f, 1.001f}) {
            shot('a').setPosition(reach * limit.x, reach * limit.y, reach * limit.z);
            match.place(player('e'), {2 * limit.x, reach * limit.y, 2 * limit.z}); // cars may leave the field
            match.update();
            EXPECT_EQ(outcome(), reach < 1 ? "--- A" : limit.y < 0 ? "e dies ---" : "---") << limit.x << ' ' << limit.z;
        }
    }
}

TEST_F(MatchTest, HasWhoHoldsTheButtonShootEvery700MillisecondsAndAPass)
{
    constexpr int kPasses = 10 * 120;
    match.devices[0].buttons[InputDevice::kShoot] = true;
    int shots = 0;
    for (int pass = 0; pass < kPasses; ++pass) {
        match.pass();
        for (const auto& ball : match.rules.getBalls())
            shots += ball->getOwner() == &player('a') && ball->getAge() == 0;
    }
    EXPECT_EQ(shots, kPasses / 85);
}

} // namespace
