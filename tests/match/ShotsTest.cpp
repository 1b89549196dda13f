#include "base/FrameTimer.h"
#include "physics/PhysicNode.h"
#include "physics/Terrain.h"
#include "players/Ball.h"
#include "testing/HeadlessMatch.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

namespace {

using physx::PxPairFlag;
using Rumble = ScriptedDevice::Rumble;

constexpr glm::vec3 kFiringRange(0, 150, 0); // far above the ground and whoever drives there

/// People who shoot only when told to.
class Shots : public testing::Test {
protected:
    Player& join() { return match.join(); }
    static ScriptedDevice& deviceOf(const Player& player) { return HeadlessMatch::deviceOf(player); }

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
    void report(physx::PxRigidActor* one, physx::PxRigidActor* other,
        PxPairFlag::Enum event = PxPairFlag::eNOTIFY_TOUCH_FOUND)
    {
        physx::PxContactPairHeader header;
        header.actors[0] = one;
        header.actors[1] = other;
        physx::PxContactPair pair;
        pair.events = event;
        match.getHits().onContact(header, &pair, 1);
    }

    static physx::PxRigidActor* bodyOf(const Ball& ball)
    {
        return static_cast<physx::PxRigidActor*>(ball.getNode()->actor);
    }
    static physx::PxRigidActor* bodyOf(const Player& player) { return player.getVehicle()->getActor(); }

    static double now() { return FrameTimer::getInstance()->getTimeMs(); }

    HeadlessMatch match{HeadlessMatch::Ground::kFlat};
};

TEST_F(Shots, HitTheCarInFrontWhichQuacksFaintlyWhenNobodyHearsIt)
{
    Player& shooter = join();
    Player& victim = join();
    deviceOf(victim).rumbles.clear();
    deviceOf(shooter).rumbles.clear();
    match.presentation.sounds.clear();
    hit(shooter, victim);

    EXPECT_EQ(victim.getHealth(), 80);
    EXPECT_EQ(victim.getDeaths(), 0);
    EXPECT_EQ(shooter.getScore(), 1);
    EXPECT_EQ(shooter.getHealth(), 100);
    EXPECT_EQ(match.graph.getRoot()->find("Ball"), nullptr);
    EXPECT_EQ(deviceOf(victim).rumbles, std::vector<Rumble>({{300, 60000, 60000}}));
    EXPECT_TRUE(deviceOf(shooter).rumbles.empty());
    EXPECT_EQ(match.presentation.count("bang", 0.3f), 1);
    EXPECT_EQ(match.presentation.count("duck", 1.0f), 1);

    Player& computer = match.addComputerPlayer();
    match.presentation.sounds.clear();
    hit(shooter, computer);
    EXPECT_EQ(match.presentation.count("duck", 0.2f), 1);
}

TEST_F(Shots, LeaveAlongTheCarsNoseAt150UnitsASecond)
{
    Player& shooter = join();
    match.passes(85);
    shooter.getVehicle()->getActor()->setGlobalPose({physx::PxVec3(0, 150, 0),
        physx::PxQuat(physx::PxHalfPi, physx::PxVec3(0, 1, 0))});
    match.graph.update(); // the car faces +x
    deviceOf(shooter).buttons[InputDevice::kShoot] = true;
    match.passes(40);
    const Ball& ball = *match.rules.getBalls().back();
    EXPECT_EQ(ball.getOwner(), &shooter);
    EXPECT_NEAR(ball.getNode()->getWorldPosition().x, 3 + 100, 3);
    EXPECT_NEAR(ball.getNode()->getWorldPosition().z, 0, 0.5f);
}

TEST_F(Shots, ComeEvery700MillisecondsAndAPassWhileTheButtonIsHeldOnADeviceThatIsPluggedIn)
{
    const double joined = now();
    Player& shooter = join();
    deviceOf(shooter).buttons[InputDevice::kShoot] = true;

    std::vector<double> shotTimes{joined};
    while (now() < joined + 5000) {
        const int before = match.presentation.count("bang");
        match.pass();
        if (match.presentation.count("bang") > before) shotTimes.push_back(now());
    }
    ASSERT_EQ(shotTimes.size(), 8u) << "seven shots in five seconds";
    for (std::size_t i = 1; i < shotTimes.size(); ++i) {
        EXPECT_GT(shotTimes[i] - shotTimes[i - 1], 700) << "shot " << i;
        EXPECT_LE(shotTimes[i] - shotTimes[i - 1], 710) << "shot " << i;
    }
    deviceOf(shooter).connected = false;
    match.passes(100);
    EXPECT_EQ(match.presentation.count("bang"), 7);
}

TEST_F(Shots, ThatTakeTheLastHealthAreWorthMoreTheBetterTheVictimStood)
{
    Player* const victims[] = {&join(), &join(), &join(), &join()};
    Player& shooter = join();
    const int scores[] = {300, 200, 100}; // each scores once more, to be taken into the ranking
    for (std::size_t i = 0; i < 3; ++i) {
        victims[i]->addScore(scores[i]);
        hit(*victims[i], shooter);
    }
    ASSERT_EQ(match.rules.getRanking().getLeader(2), victims[2]);

    const int bonus[] = {8, 7, 6, 5};
    for (std::size_t i = 0; i < 4; ++i) {
        SCOPED_TRACE("place " + std::to_string(i + 1));
        victims[i]->takeDamage(70);
        hit(shooter, *victims[i]);
        EXPECT_EQ(victims[i]->getHealth(), 10);
        const int before = shooter.getScore();
        hit(shooter, *victims[i]); // takes more than there is
        EXPECT_EQ(shooter.getScore() - before, 1 + bonus[i]);
        EXPECT_EQ(victims[i]->getHealth(), 100);
        EXPECT_EQ(victims[i]->getDeaths(), 1);
        EXPECT_NEAR(victims[i]->getHeight(), 50, 1) << "back from above";
        EXPECT_EQ(deviceOf(*victims[i]).rumbles.back(), (Rumble{600, 30000, 30000}));
    }
}

TEST_F(Shots, HitOnceWithEveryBeginningTouch)
{
    struct {
        PxPairFlag::Enum event;
        bool ballFirst;
        int times, damage;
    } const rows[] = {{PxPairFlag::eNOTIFY_TOUCH_FOUND, false, 1, 20}, {PxPairFlag::eNOTIFY_TOUCH_FOUND, true, 3, 20},
        {PxPairFlag::eNOTIFY_TOUCH_PERSISTS, true, 1, 0}, {PxPairFlag::eNOTIFY_TOUCH_LOST, true, 1, 0}};
    Player& shooter = join();
    Player& victim = join();
    for (const auto& row : rows) {
        const Ball& ball = fire(shooter);
        const int score = shooter.getScore();
        for (int i = 0; i < row.times; ++i) {
            if (row.ballFirst) report(bodyOf(ball), bodyOf(victim), row.event);
            else report(bodyOf(victim), bodyOf(ball), row.event);
        }
        EXPECT_EQ(victim.getHealth(), 100) << "hits are resolved by the next pass";
        match.passes(3);
        EXPECT_EQ(100 - victim.getHealth(), row.damage) << "event " << row.event << ", " << row.times << " times";
        EXPECT_EQ(shooter.getScore() - score, row.damage / 20);
        victim.die();
    }
}

TEST_F(Shots, HitEveryCarThatTheyTouchInOneStepTheShootersToo)
{
    Player& shooter = join();
    Player& victim = join();
    const Ball& ball = fire(shooter);
    report(bodyOf(ball), bodyOf(shooter));
    report(bodyOf(ball), bodyOf(victim));
    report(bodyOf(shooter), bodyOf(victim)); // cars that touch are nobody's hit
    report(match.getTerrain().getActor(), bodyOf(victim));
    match.pass();

    EXPECT_EQ(shooter.getHealth(), 80);
    EXPECT_EQ(victim.getHealth(), 80);
    EXPECT_EQ(shooter.getScore(), 2);
    EXPECT_TRUE(match.rules.getBalls().empty());
}

TEST_F(Shots, AreSpentByTenTouchesOfWhichOneAPassCounts)
{
    Player& shooter = join();
    const Ball& ball = fire(shooter);
    for (int touch = 1; touch <= 10; ++touch) {
        ASSERT_EQ(match.rules.getBalls().size(), 1u) << "before touch " << touch;
        for (int repeat = 0; repeat < 3; ++repeat) report(match.getTerrain().getActor(), bodyOf(ball));
        match.pass();
    }
    EXPECT_TRUE(match.rules.getBalls().empty());
}

TEST_F(Shots, AreGoneAfterFiveSeconds)
{
    const Ball& ball = fire(join());
    const double fired = now();
    ball.getNode()->setPosition(-120, 45, 130); // above ground where nobody is
    ball.getNode()->setLinearVelocity(glm::vec3(0));
    match.passes(200);
    EXPECT_GE(ball.getHits(), 1) << "touched the ground";

    for (int i = 0; i < 700 && !match.rules.getBalls().empty(); ++i) match.pass();
    EXPECT_GE(now() - fired, 5000);
    EXPECT_LE(now() - fired, 5010);
}

TEST_F(Shots, AreGoneBeyondTheFieldAndBelowIt)
{
    struct {
        glm::vec3 position;
        bool isOut;
    } const rows[] = {{{275.5f, 90, 0}, false}, {{276.5f, 90, 0}, true}, {{-275.5f, 90, 0}, false},
        {{-276.5f, 90, 0}, true}, {{0, 90, 275.5f}, false}, {{0, 90, 276.5f}, true}, {{0, 90, -275.5f}, false},
        {{0, 90, -276.5f}, true}, {{270, -29, 0}, false}, {{270, -30.5f, 0}, true}};
    Player& shooter = join();
    PhysicNode* ball = nullptr;
    for (const auto& [position, isOut] : rows) {
        if (match.rules.getBalls().empty()) ball = fire(shooter).getNode();
        ball->setPosition(position.x, position.y, position.z);
        ball->setLinearVelocity(glm::vec3(0));
        match.graph.update();
        match.pass();
        EXPECT_EQ(match.rules.getBalls().empty(), isOut) << position.x << " " << position.y << " " << position.z;
    }
}

} // namespace
