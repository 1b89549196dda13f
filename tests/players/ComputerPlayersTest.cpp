#include "support/HeadlessMatch.h"
#include "support/Near.h"
#include "support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr float kOnTheGround = 43.1f; // where a car stands on the flat ground

class ComputerPlayers : public testing::Test {
protected:
    Player& join() { return match.addPlayer(devices.at(static_cast<std::size_t>(match.rules.getHumanPlayerCount()))); }

    HeadlessMatch match{HeadlessMatch::Ground::kFlat};
    std::array<ScriptedDevice, 4> devices;
};

TEST_F(ComputerPlayers, AreNumberedNamedAndGrey)
{
    Player& person = join();
    match.stage.sounds.clear();
    Player& first = match.addComputerPlayer();
    Player& second = match.addComputerPlayer();

    EXPECT_EQ(first.getName(), "(0) Player 1, AI-Controller -1");
    EXPECT_EQ(second.getName(), "(0) Player 2, AI-Controller 0");
    EXPECT_TRUE(isNear(first.getColor(), glm::vec4(1, 1, 1, 0)));
    EXPECT_TRUE(isNear(second.getColor(), glm::vec4(0.9f, 0.9f, 0.9f, 0)));
    EXPECT_TRUE(isNear(match.stage.colours.at(2), second.getColor())) << "the car is dressed in it";
    ASSERT_EQ(match.stage.sounds.size(), 2u);
    EXPECT_EQ(match.stage.sounds[0].volume, 0.2f) << "quacks faintly as it appears";

    // Computer players do not shift the colours of people, but their numbers.
    Player& late = join();
    EXPECT_EQ(late.getName(), "(0) Player 3, Script");
    EXPECT_TRUE(isNear(late.getColor(), glm::vec4(0.2f, 0.9f, 0.1f, 1)));
    EXPECT_TRUE(isNear(person.getColor(), glm::vec4(0.9f, 0.2f, 0.1f, 1)));

    match.pass();
    EXPECT_EQ(match.stage.lines.size(), 4u) << "labels for the two people only";
}

TEST_F(ComputerPlayers, StandStillWhenTheyAreAlone)
{
    Player& computer = match.addComputerPlayer();
    match.passes(480);
    const glm::vec3 start = computer.getPosition();
    match.passes(240);
    EXPECT_EQ(computer.getVehicle()->getRawInputs().getAnalogAccel(), 0);
    EXPECT_EQ(computer.getVehicle()->getRawInputs().getAnalogSteer(), 0);
    EXPECT_LT(glm::length(computer.getPosition() - start), 0.5f);
    EXPECT_TRUE(match.rules.getBalls().empty());
}

TEST_F(ComputerPlayers, TurnTowardsTheirTargets)
{
    // Two opponents side by side: whichever it looks at, they are on the same side.
    Player& computer = match.addComputerPlayer();
    Player& one = join();
    Player& two = join();
    match.passes(120);
    for (const float x : {80.0f, -80.0f}) { // to the driver's left, and right
        match.place(computer, {0, kOnTheGround, 0});
        match.place(one, {x, kOnTheGround, 5});
        match.place(two, {x, kOnTheGround, -5});
        const auto facing = [&] {
            const glm::vec3 forward(computer.getChassisTransform()[2]);
            return glm::dot(forward, glm::normalize((one.getPosition() + two.getPosition()) / 2.0f - computer.getPosition()));
        };
        EXPECT_NEAR(facing(), 0, 0.05f);
        for (int i = 0; i < 960 && facing() < 0.94f; ++i) match.pass();
        EXPECT_GE(facing(), 0.94f) << "targets at x " << x;
        EXPECT_LT(glm::length(computer.getPosition()), 60) << "by turning, not by going round";
    }
}

TEST_F(ComputerPlayers, ShootWhoStandsInFrontOfThem)
{
    Player& computer = match.addComputerPlayer();
    Player& person = join();
    match.passes(90);
    match.place(computer, {0, kOnTheGround, 0});
    match.place(person, {0, kOnTheGround, 30});
    match.stage.sounds.clear();
    match.passes(3);
    ASSERT_EQ(match.rules.getBalls().size(), 1u);
    EXPECT_EQ(match.stage.sounds.at(0).name, "bang");
}

struct SearchRow {
    const char* what;
    glm::vec3 hunter, one, two;
    int found; // 1 or 2; 0: nobody
};

TEST_F(ComputerPlayers, PreferTargetsThatAreNearAndAhead)
{
    const SearchRow rows[] = {
        {"the nearer of two in the same direction", {0, 60, 0}, {10, 60, 80}, {5, 60, 40}, 2},
        {"ahead rather than behind", {0, 60, 0}, {5, 60, 40}, {5, 60, -40}, 1},
        {"ahead rather than beside", {0, 60, 0}, {-40, 60, 0}, {5, 60, 40}, 2},
        {"close behind rather than far ahead", {0, 60, 0}, {5, 60, 90}, {5, 60, -20}, 2},
        {"height counts as distance", {0, 60, 0}, {5, 200, 40}, {5, 60, 60}, 2},
        {"not who is far outside", {500, 60, 0}, {513, 60, 20}, {400, 60, 0}, 2},
        {"but who is not so far", {500, 60, 0}, {511, 60, 20}, {400, 60, 0}, 1},
        {"outside on every side", {0, 60, -500}, {0, 60, -513}, {-513, 60, -500}, 0},
        {"outside in front", {0, 60, 500}, {0, 60, 513}, {513, 60, 500}, 0},
    };
    Player& hunter = match.addComputerPlayer();
    Player& one = join();
    Player& two = join();
    for (const SearchRow& row : rows) {
        match.place(hunter, row.hunter);
        match.place(one, row.one);
        match.place(two, row.two);
        const IPilot* const candidates[] = {nullptr, &one, &two};
        EXPECT_EQ(match.rules.findTarget(hunter, nullptr), candidates[row.found]) << row.what;
        if (row.found == 0) continue;
        const IPilot* const found = candidates[row.found];
        EXPECT_NE(match.rules.findTarget(hunter, found), found) << row.what;
    }
}

TEST_F(ComputerPlayers, NeverHuntThemselvesOrWhomTheyAreToLeaveAlone)
{
    Player& hunter = match.addComputerPlayer();
    EXPECT_EQ(match.rules.findTarget(hunter, nullptr), nullptr);
    Player& other = match.addComputerPlayer();
    match.place(hunter, {0, 60, 0});
    match.place(other, {30, 60, 30});
    EXPECT_EQ(match.rules.findTarget(hunter, nullptr), static_cast<const IPilot*>(&other)) << "computers hunt each other";
    EXPECT_EQ(match.rules.findTarget(hunter, &other), nullptr);

    match.place(other, {0, 90, 0}); // straight above: no direction to measure
    EXPECT_EQ(match.rules.findTarget(hunter, nullptr), static_cast<const IPilot*>(&other));
}

} // namespace
