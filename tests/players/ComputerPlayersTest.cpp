#include "testing/HeadlessMatch.h"

#include <gtest/gtest.h>

namespace {

constexpr float kOnTheGround = 43.1f; // where a car stands on the flat ground

class ComputerPlayers : public testing::Test {
protected:
    HeadlessMatch match{HeadlessMatch::Ground::kFlat};
};

TEST_F(ComputerPlayers, TurnTowardsTheirTargetsAndShoot)
{
    // Two opponents side by side: whichever it looks at, they are on the same side.
    Player& computer = match.addComputerPlayer();
    Player& one = match.join();
    Player& two = match.join();
    match.passes(120);
    for (const float x : {80.0f, -80.0f}) { // to the driver's left, and right
        match.place(computer, {0, kOnTheGround, 0});
        match.place(one, {x, kOnTheGround, 5});
        match.place(two, {x, kOnTheGround, -5});
        match.stage.sounds.clear();
        const auto facing = [&] {
            const glm::vec3 forward(computer.getChassisTransform()[2]);
            return glm::dot(forward,
                glm::normalize((one.getPosition() + two.getPosition()) / 2.0f - computer.getPosition()));
        };
        EXPECT_NEAR(facing(), 0, 0.05f);
        for (int i = 0; i < 960 && facing() < 0.94f; ++i) match.pass();
        EXPECT_GE(facing(), 0.94f) << "targets at x " << x;
        EXPECT_LT(glm::length(computer.getPosition()), 60) << "by turning, not by going round";
        match.passes(90);
        EXPECT_GE(match.stage.count("bang"), 1);
    }
}

TEST_F(ComputerPlayers, PreferTargetsThatAreNearAndAhead)
{
    struct {
        const char* what;
        glm::vec3 hunter, one, two;
        int found; // 1 or 2; 0: nobody
    } const rows[] = {
        {"the nearer of two in the same direction", {0, 60, 0}, {10, 60, 80}, {5, 60, 40}, 2},
        {"ahead rather than behind", {0, 60, 0}, {5, 60, 40}, {5, 60, -40}, 1},
        {"ahead rather than beside", {0, 60, 0}, {-40, 60, 0}, {5, 60, 40}, 2},
        {"close behind rather than far ahead", {0, 60, 0}, {5, 60, 90}, {5, 60, -20}, 2},
        {"height counts as distance", {0, 60, 0}, {5, 200, 40}, {5, 60, 60}, 2},
        {"straight above, where no direction can be measured", {0, 60, 0}, {0, 90, 0}, {500, 60, 500}, 1},
        {"not who is far outside", {500, 60, 0}, {513, 60, 20}, {400, 60, 0}, 2},
        {"but who is not so far", {500, 60, 0}, {511, 60, 20}, {400, 60, 0}, 1},
        {"outside on every side", {0, 60, -500}, {0, 60, -513}, {-513, 60, -500}, 0},
        {"outside in front", {0, 60, 500}, {0, 60, 513}, {513, 60, 500}, 0},
    };
    Player& hunter = match.addComputerPlayer();
    EXPECT_EQ(match.rules.findTarget(hunter, nullptr), nullptr) << "itself";
    Player& one = match.addComputerPlayer();
    EXPECT_EQ(match.rules.findTarget(hunter, &one), nullptr) << "whom it is to leave alone";
    Player& two = match.join();
    for (const auto& row : rows) {
        match.place(hunter, row.hunter);
        match.place(one, row.one);
        match.place(two, row.two);
        const IPilot* const candidates[] = {nullptr, &one, &two};
        EXPECT_EQ(match.rules.findTarget(hunter, nullptr), candidates[row.found]) << row.what;
    }
}

} // namespace
