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
        match.presentation.sounds.clear();
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
        EXPECT_GE(match.presentation.count("bang"), 1);
    }
}

} // namespace
