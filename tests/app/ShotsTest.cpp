#include "app/base/FrameTimer.h"
#include "players/Ball.h"
#include "support/HeadlessMatch.h"
#include "support/ScriptedDevice.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

#include <array>

namespace {

using physx::PxPairFlag;
using Rumble = ScriptedDevice::Rumble;

constexpr glm::vec3 kFiringRange(0, 150, 0); // far above the ground and whoever drives there

/// Up to four players who shoot only when told to.
class Shots : public testing::Test {
protected:
    Player& join()
    {
        ScriptedDevice& device = devices.at(static_cast<std::size_t>(match.rules.getActorCount()));
        return match.addPlayer(device);
    }

    static ScriptedDevice& deviceOf(const Player& player) { return static_cast<ScriptedDevice&>(player.getDevice()); }

    /// One shot of the player's, in the air above everybody; the ball lies 3 ahead of the car and 2 above it.
    Ball& fire(Player& shooter)
    {
        match.passes(85); // the shot before is 700 ms ago
        match.place(shooter, kFiringRange);
        deviceOf(shooter).buttons[InputDevice::kShoot] = true;
        match.pass();
        deviceOf(shooter).buttons[InputDevice::kShoot] = false;
        return *match.rules.getBalls().back();
    }

    /// The shooter hits the car in front of it.
    void hit(Player& shooter, Player& victim)
    {
        const int score = shooter.getScore();
        fire(shooter);
        match.place(victim, kFiringRange + glm::vec3(0, 2, 15));
        for (int i = 0; i < 10 && shooter.getScore() == score; ++i) match.pass();
        ASSERT_GT(shooter.getScore(), score) << "the shot missed";
    }

    /// What the physics would report, in one step, of two bodies.
    void report(physx::PxRigidActor* one, physx::PxRigidActor* other, PxPairFlag::Enum event = PxPairFlag::eNOTIFY_TOUCH_FOUND)
    {
        physx::PxContactPairHeader header;
        header.actors[0] = one;
        header.actors[1] = other;
        physx::PxContactPair pair;
        pair.events = event;
        match.rules.onContact(header, &pair, 1);
    }

    static physx::PxRigidActor* bodyOf(const Ball& ball) { return static_cast<physx::PxRigidActor*>(ball.getNode()->actor); }
    static physx::PxRigidActor* bodyOf(const Player& player) { return player.getVehicle()->getActor(); }

    int countSounds(const std::string& name, float volume) const
    {
        int count = 0;
        for (const auto& sound : match.stage.sounds) count += sound.name == name && sound.volume == volume;
        return count;
    }

    static double now() { return FrameTimer::getInstance()->getTimeMs(); }

    HeadlessMatch match{HeadlessMatch::Ground::kFlat};
    std::array<ScriptedDevice, 4> devices;
};

TEST_F(Shots, AShotHitsTheCarInFront)
{
    Player& shooter = join();
    Player& victim = join();
    match.passes(85);
    deviceOf(victim).rumbles.clear();
    deviceOf(shooter).rumbles.clear();
    match.stage.sounds.clear();
    hit(shooter, victim);

    EXPECT_EQ(victim.getHealth(), 80);
    EXPECT_EQ(victim.getDeaths(), 0);
    EXPECT_EQ(shooter.getScore(), 1);
    EXPECT_EQ(shooter.getHealth(), 100);
    EXPECT_TRUE(match.rules.getBalls().empty());
    EXPECT_EQ(match.graph.getRoot()->find("Ball"), nullptr);
    EXPECT_EQ(deviceOf(victim).rumbles, std::vector<Rumble>({{300, 60000, 60000}}));
    EXPECT_TRUE(deviceOf(shooter).rumbles.empty());
    EXPECT_EQ(countSounds("bang", 0.3f), 1);
    EXPECT_EQ(countSounds("duck", 1.0f), 1);
    EXPECT_EQ(match.stage.sounds.size(), 2u);
}

TEST_F(Shots, WhoIsNotHeardQuacksFaintly)
{
    Player& shooter = join();
    Player& computer = match.addComputerPlayer();
    match.stage.sounds.clear();
    hit(shooter, computer);
    EXPECT_EQ(computer.getHealth(), 80);
    EXPECT_EQ(countSounds("duck", 0.2f), 1);
    EXPECT_EQ(countSounds("duck", 1.0f), 0);
}

TEST_F(Shots, TheBallLeavesAlongTheCarsNoseWithItsSpeed)
{
    Player& shooter = join();
    const glm::vec3 start = kFiringRange + glm::vec3(0, 2, 3);
    const Ball& ball = fire(shooter);

    EXPECT_EQ(ball.getOwner(), &shooter);
    EXPECT_EQ(ball.getNode()->getName(), "Ball");
    match.passes(39);
    const glm::vec3 flown = ball.getNode()->getWorldPosition() - start;
    EXPECT_NEAR(flown.z, 100, 3) << "150 units per second, 40 steps of 1/60 s";
    EXPECT_NEAR(flown.x, 0, 0.1f);

    // A car that has turned shoots where it points to: along +x.
    match.passes(85);
    shooter.getVehicle()->getActor()->setGlobalPose({physx::PxVec3(0, 150, 0), physx::PxQuat(physx::PxHalfPi, physx::PxVec3(0, 1, 0))});
    match.graph.update();
    deviceOf(shooter).buttons[InputDevice::kShoot] = true;
    match.passes(40);
    const glm::vec3 position = match.rules.getBalls().back()->getNode()->getWorldPosition();
    EXPECT_NEAR(position.x, 3 + 100, 3);
    EXPECT_NEAR(position.z, 0, 0.5f);
}

TEST_F(Shots, HoldingTheButtonFiresEvery700MillisecondsAndAPass)
{
    const double joined = now();
    Player& shooter = join();
    deviceOf(shooter).buttons[InputDevice::kShoot] = true;

    std::vector<double> shotTimes{joined};
    while (now() < joined + 5000) {
        const int before = countSounds("bang", 0.3f);
        match.pass();
        if (countSounds("bang", 0.3f) > before) shotTimes.push_back(now());
    }
    ASSERT_EQ(shotTimes.size(), 8u) << "seven shots in five seconds";
    for (std::size_t i = 1; i < shotTimes.size(); ++i) {
        EXPECT_GT(shotTimes[i] - shotTimes[i - 1], 700) << "shot " << i;
        EXPECT_LE(shotTimes[i] - shotTimes[i - 1], 710) << "shot " << i;
    }
}

TEST_F(Shots, AnUnpluggedDeviceDoesNotShoot)
{
    Player& shooter = join();
    deviceOf(shooter).buttons[InputDevice::kShoot] = true;
    deviceOf(shooter).connected = false;
    match.passes(200);
    EXPECT_EQ(countSounds("bang", 0.3f), 0);
}

TEST_F(Shots, FiveHitsKill)
{
    Player& shooter = join();
    Player& victim = join();
    for (int i = 1; i < 5; ++i) {
        hit(shooter, victim);
        EXPECT_EQ(victim.getHealth(), 100 - 20 * i);
    }
    hit(shooter, victim);

    EXPECT_EQ(victim.getHealth(), 100);
    EXPECT_EQ(victim.getDeaths(), 1);
    EXPECT_EQ(shooter.getScore(), 5 + 5) << "a point for each hit, five for the kill";
    EXPECT_NEAR(victim.getHeight(), 50, 1) << "back from above";
    EXPECT_EQ(deviceOf(victim).rumbles.back(), (Rumble{600, 30000, 30000}));
}

TEST_F(Shots, KillingALeaderIsWorthMore)
{
    Player* const leaders[] = {&join(), &join(), &join()};
    Player& shooter = join();
    const int scores[] = {300, 200, 100}; // each scores once more, to be taken into the ranking
    for (std::size_t i = 0; i < 3; ++i) {
        leaders[i]->addScore(scores[i]);
        hit(*leaders[i], shooter);
    }
    ASSERT_EQ(match.rules.getRanking().getLeader(2), leaders[2]);

    const int bonus[] = {8, 7, 6};
    for (std::size_t i = 0; i < 3; ++i) {
        const int before = shooter.getScore();
        leaders[i]->takeDamage(80);
        hit(shooter, *leaders[i]);
        EXPECT_EQ(shooter.getScore() - before, 1 + bonus[i]) << "place " << i + 1;
        EXPECT_EQ(leaders[i]->getDeaths(), 1);
    }
}

TEST_F(Shots, EveryBeginningTouchOfABallAndACarIsOneHit)
{
    struct {
        PxPairFlag::Enum event;
        bool ballFirst;
        int times, damage;
    } const rows[] = {{PxPairFlag::eNOTIFY_TOUCH_FOUND, false, 1, 20}, {PxPairFlag::eNOTIFY_TOUCH_FOUND, true, 1, 20},
        {PxPairFlag::eNOTIFY_TOUCH_FOUND, true, 3, 20}, {PxPairFlag::eNOTIFY_TOUCH_PERSISTS, true, 1, 0},
        {PxPairFlag::eNOTIFY_TOUCH_LOST, true, 1, 0}};
    Player& shooter = join();
    Player& victim = join();
    for (const auto& row : rows) {
        const Ball& ball = fire(shooter);
        const int health = victim.getHealth();
        const int score = shooter.getScore();
        for (int i = 0; i < row.times; ++i) {
            if (row.ballFirst) report(bodyOf(ball), bodyOf(victim), row.event);
            else report(bodyOf(victim), bodyOf(ball), row.event);
        }
        EXPECT_EQ(victim.getHealth(), health) << "hits are resolved by the next pass";
        match.pass();
        EXPECT_EQ(health - victim.getHealth(), row.damage) << "event " << row.event << ", " << row.times << " times";
        EXPECT_EQ(shooter.getScore() - score, row.damage / 20);
        match.passes(2);
        EXPECT_EQ(health - victim.getHealth(), row.damage) << "a hit counts once";
        victim.die();
    }
}

TEST_F(Shots, ABallThatTouchesTwoCarsInOneStepHitsBoth)
{
    Player& shooter = join();
    Player& one = join();
    Player& two = join();
    const Ball& ball = fire(shooter);
    report(bodyOf(ball), bodyOf(one));
    report(bodyOf(ball), bodyOf(two));
    match.pass();

    EXPECT_EQ(one.getHealth(), 80);
    EXPECT_EQ(two.getHealth(), 80);
    EXPECT_EQ(shooter.getScore(), 2);
    EXPECT_TRUE(match.rules.getBalls().empty());
}

TEST_F(Shots, ACarThatRunsIntoItsOwnShotIsHitLikeAnyOther)
{
    Player& shooter = join();
    fire(shooter);
    match.place(shooter, kFiringRange + glm::vec3(0, 2, 15));
    match.passes(10);
    EXPECT_EQ(shooter.getHealth(), 80);
    EXPECT_EQ(shooter.getScore(), 1);
}

TEST_F(Shots, TouchesOfCarsAndGroundAreNobodysHit)
{
    Player& one = join();
    Player& two = join();
    match.place(one, {0, 46, 0});
    match.place(two, {0, 49, 0}); // falls on the first one's roof
    match.passes(240);
    EXPECT_EQ(one.getHealth() + two.getHealth(), 200);
    EXPECT_EQ(one.getScore() + two.getScore(), 0);
}

TEST_F(Shots, TenTouchesSpendABallButOnlyOneAPassCounts)
{
    Player& shooter = join();
    const Ball& ball = fire(shooter);
    physx::PxRigidActor* ground = match.getTerrain().getActor();
    for (int touch = 1; touch <= 9; ++touch) {
        for (int repeat = 0; repeat < 3; ++repeat) report(ground, bodyOf(ball));
        EXPECT_EQ(ball.getHits(), touch);
        match.pass();
        ASSERT_EQ(match.rules.getBalls().size(), 1u) << "after " << touch << " touches";
    }
    report(ground, bodyOf(ball));
    match.pass();
    EXPECT_TRUE(match.rules.getBalls().empty());
}

TEST_F(Shots, ABallAtRestIsGoneAfterFiveSeconds)
{
    Player& shooter = join();
    PhysicNode& ball = *fire(shooter).getNode();
    const double fired = now();
    ball.setPosition(-120, 43.1f, 130); // on the ground where nobody is
    ball.setLinearVelocity(glm::vec3(0));

    for (int i = 0; i < 700 && !match.rules.getBalls().empty(); ++i) match.pass();
    ASSERT_TRUE(match.rules.getBalls().empty());
    EXPECT_GE(now() - fired, 5000);
    EXPECT_LE(now() - fired, 5010);
}

struct LeavingRow {
    glm::vec3 position;
    bool isOut;
};

TEST_F(Shots, BallsBeyondTheFieldAndBelowItAreRemoved)
{
    const LeavingRow rows[] = {{{275.5f, 90, 0}, false}, {{276.5f, 90, 0}, true}, {{-275.5f, 90, 0}, false}, {{-276.5f, 90, 0}, true},
        {{0, 90, 275.5f}, false}, {{0, 90, 276.5f}, true}, {{0, 90, -275.5f}, false}, {{0, 90, -276.5f}, true}, {{270, -29, 0}, false},
        {{270, -30.5f, 0}, true}};
    Player& shooter = join();
    for (const LeavingRow& row : rows) {
        PhysicNode& ball = *fire(shooter).getNode();
        ball.setPosition(row.position.x, row.position.y, row.position.z);
        ball.setLinearVelocity(glm::vec3(0));
        match.graph.update();
        match.pass();
        EXPECT_EQ(match.rules.getBalls().empty(), row.isOut) << row.position.x << " " << row.position.y << " " << row.position.z;
        if (row.isOut) continue;
        ball.setPosition(0, -100, 0);
        match.passes(2);
        EXPECT_TRUE(match.rules.getBalls().empty());
    }
}

} // namespace
