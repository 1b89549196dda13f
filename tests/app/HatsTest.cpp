#include "app/base/FrameTimer.h"
#include "support/HeadlessMatch.h"
#include "support/Near.h"
#include "support/ScriptedDevice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

enum Place { kGold, kSilver, kBronze };

class HatsTest : public testing::Test {
protected:
    HatsTest()
    {
        for (ScriptedDevice& device : devices) match.addPlayer(device);
    }

    Player& player(int i) { return *match.rules.getPlayers().at(static_cast<std::size_t>(i)); }

    /// The player shoots and hits somebody; before that it is given points so that it then has that score.
    void scores(int i, int score)
    {
        Player& shooter = player(i);
        Player& victim = player((i + 1) % 4);
        shooter.addScore(score - 1 - shooter.getScore());
        match.passes(85);
        match.place(shooter, {0, 150, 0});
        match.place(victim, {0, 152, 18});
        devices.at(static_cast<std::size_t>(i)).buttons[InputDevice::kShoot] = true;
        match.pass();
        devices.at(static_cast<std::size_t>(i)).buttons[InputDevice::kShoot] = false;
        match.passes(10);
        ASSERT_EQ(shooter.getScore(), score) << "the shot missed";
    }

    /// Who wears the hats; -1 for nobody.
    std::array<int, 3> wearers()
    {
        std::array<int, 3> result{-1, -1, -1};
        for (int place = kGold; place <= kBronze; ++place) {
            for (int i = 0; i < 4; ++i) {
                const Node* wearer = match.rules.getHats().getNode(place)->getParent();
                if (wearer == player(i).getChassisNode()) result.at(static_cast<std::size_t>(place)) = i;
            }
        }
        return result;
    }

    HeadlessMatch match{HeadlessMatch::Ground::kFlat};
    std::array<ScriptedDevice, 4> devices;
};

using Wearers = std::array<int, 3>;

TEST_F(HatsTest, AreInNoTreeBeforeTheFirstPoint)
{
    for (int place = kGold; place <= kBronze; ++place) {
        Node* hat = match.rules.getHats().getNode(place);
        EXPECT_EQ(hat->getParent(), nullptr);
        EXPECT_EQ(hat->getName(), "hat" + std::to_string(place + 1));
        EXPECT_EQ(match.rules.getHats().getAnimationNode(place)->getParent(), hat);
        EXPECT_EQ(match.rules.getHats().getAnimationNode(place)->getName(), hat->getName() + "anim");
    }
}

TEST_F(HatsTest, RideOnTheLeadersAndMoveWhenOneOvertakes)
{
    scores(2, 1);
    EXPECT_EQ(wearers(), (Wearers{2, -1, -1}));
    EXPECT_EQ(match.rules.getHats().getNode(kSilver)->getParent(), nullptr);
    scores(0, 1);
    EXPECT_EQ(wearers(), (Wearers{2, 0, -1})) << "an equal score does not overtake";
    scores(3, 1);
    EXPECT_EQ(wearers(), (Wearers{2, 0, 3}));
    scores(0, 2);
    EXPECT_EQ(wearers(), (Wearers{0, 2, 3})) << "the second overtakes the first, the third stays";
    scores(1, 5);
    EXPECT_EQ(wearers(), (Wearers{1, 0, 2})) << "one from behind overtakes all";
    scores(1, 6);
    EXPECT_EQ(wearers(), (Wearers{1, 0, 2}));

    for (int i = 0; i < 4; ++i) {
        int worn = 0;
        for (const Node* child : player(i).getChassisNode()->getChildren()) worn += child->getName().starts_with("hat");
        EXPECT_EQ(worn, i == 3 ? 0 : 1) << "player " << i << " gave the old hat away";
    }
}

TEST_F(HatsTest, BobUpAndDownOnTheHead)
{
    scores(0, 1);
    float lowest = 1, highest = -1;
    for (int i = 0; i < 400; ++i) {
        match.pass();
        const Node* animation = match.rules.getHats().getAnimationNode(kGold);
        const glm::mat4 inChassis = glm::inverse(player(0).getChassisTransform()) * animation->getWorldTransform();
        const auto bob = static_cast<float>(std::sin(FrameTimer::getInstance()->getTimeMs() / 450.0));
        lowest = std::min(lowest, bob);
        highest = std::max(highest, bob);

        // A point (x, y, z) of the mesh comes to ((x - 0.1) / 2, (z + 7.3) / 2, (1 - y) / 2) of the car, z raised by the bobbing.
        const glm::vec3 point(0.4f, 0.6f, -4);
        const glm::vec3 expected((point.x - 0.1f) / 2, (point.z + bob + 7.3f) / 2, (1 - point.y) / 2);
        ASSERT_TRUE(isNear(glm::vec3(inChassis * glm::vec4(point, 1)), expected, 2e-3f)) << "pass " << i;
    }
    EXPECT_LT(lowest, -0.9f);
    EXPECT_GT(highest, 0.9f);
}

} // namespace
