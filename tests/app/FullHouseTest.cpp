#include "input/InputDevice.h"
#include "physics/VehicleHandle.h"
#include "players/Ball.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "testing/GlErrors.h"
#include "testing/ScriptedKeyboard.h"
#include "testing/TestGame.h"
#include "testing/VirtualPad.h"

#include <gtest/gtest.h>
#include <vehicle/PxVehicleDrive4W.h>

#include <deque>
#include <functional>
#include <set>

namespace {

constexpr int kPadCount = 4;
constexpr int kPeople = 6;
constexpr int kComputerPlayers = 10;

/// The whole game with its window, and everybody whom it has room for. One story in parts: there is one game to a
/// process.
class FullHouse : public testing::Test {
protected:
    struct House {
        PadLibrary library;
        std::deque<VirtualPad> pads;
        TestGame game{1.0 / 60.0};
        std::unique_ptr<ScriptedKeyboard> keys; // once the window no longer puts its own in place
    };

    static void SetUpTestSuite()
    {
        house = std::make_unique<House>();
        for (int i = 0; i < kPadCount; ++i) house->pads.emplace_back();
        ASSERT_TRUE(house->game.start()) << "no OpenGL 4.3 core context; is there a display?";
        failTestsOnGlErrors();
        house->keys = std::make_unique<ScriptedKeyboard>();
    }

    static void TearDownTestSuite()
    {
        house->game.getRenderer().terminate();
        house.reset();
    }

    static void pass(int passes = 1)
    {
        for (int i = 0; i < passes; ++i) {
            house->game.updatePass();
            house->game.getScene().update();
        }
    }

    static Player& player(int i) { return *house->game.getMatch().getPlayers().at(static_cast<std::size_t>(i)); }
    static float throttleOf(int i) { return player(i).getVehicle()->getRawInputs().getAnalogAccel(); }

    static void stepOn(int i, bool down)
    {
        if (i < kPadCount) {
            VirtualPad& pad = house->pads[static_cast<std::size_t>(i)];
            pad.move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, down ? SDL_JOYSTICK_AXIS_MAX : SDL_JOYSTICK_AXIS_MIN);
        } else if (down) {
            house->keys->hold({i == kPadCount ? GLFW_KEY_UP : GLFW_KEY_W});
        } else {
            house->keys->reset();
        }
    }

    static std::unique_ptr<House> house;
};

std::unique_ptr<FullHouse::House> FullHouse::house;

TEST_F(FullHouse, StartsByItselfWithTheSixteenth)
{
    for (VirtualPad& pad : house->pads) pad.press(SDL_CONTROLLER_BUTTON_A);
    house->keys->hold({GLFW_KEY_K, GLFW_KEY_1});
    pass();
    for (VirtualPad& pad : house->pads) pad.release(SDL_CONTROLLER_BUTTON_A);
    for (int i = 0; i < kComputerPlayers; ++i) {
        EXPECT_EQ(house->game.getStateName(), "RegisterPlayersGamestate") << i;
        house->keys->tap(GLFW_KEY_SPACE);
        pass();
    }
    EXPECT_EQ(house->game.getStateName(), "PlayGamestate");
    EXPECT_EQ(house->game.getMatch().getActorCount(), 16);
    const char* const devices[kPeople] = {"XBOX 1", "XBOX 2", "XBOX 3", "XBOX 4", "Pfeil", "WASD"};
    for (int i = 0; i < kPeople; ++i) EXPECT_EQ(player(i).getDevice().getName(), devices[i]);
    house->game.pass();
}

TEST_F(FullHouse, LetsEverybodyDriveTheirOwnCarAndShoot)
{
    for (int driver = 0; driver < kPeople; ++driver) {
        stepOn(driver, true);
        pass();
        for (int i = 0; i < kPeople; ++i) EXPECT_EQ(throttleOf(i), i == driver) << driver << " drives " << i;
        stepOn(driver, false);
    }

    house->keys->hold({GLFW_KEY_UP, GLFW_KEY_W, GLFW_KEY_K, GLFW_KEY_1});
    for (int i = 0; i < kPadCount; ++i) stepOn(i, true);
    for (VirtualPad& pad : house->pads) pad.press(SDL_CONTROLLER_BUTTON_A);
    std::set<const Player*> driving, shooting;
    for (int i = 0; i < 2000 && driving.size() + shooting.size() < 32; ++i) {
        pass();
        for (const Player* actor : house->game.getMatch().getActors())
            if (actor->getForwardSpeed() > 4) driving.insert(actor);
        for (const auto& ball : house->game.getMatch().getBalls()) shooting.insert(ball->getOwner());
    }
    EXPECT_EQ(driving.size(), 16u);
    EXPECT_EQ(shooting.size(), 16u);
    EXPECT_NE(house->game.getMatch().getRanking().getLeader(0), nullptr) << "nobody was hit";
}

TEST_F(FullHouse, GivesTheCarOfALostPadToTheNextPadThatComes)
{
    for (int i = 0; i < kPadCount; ++i) stepOn(i, false);
    house->pads[2].unplug();
    pass();
    VirtualPad& other = house->pads.emplace_back(2); // of another kind
    pass();
    other.move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, SDL_JOYSTICK_AXIS_MAX);
    pass();
    EXPECT_EQ(throttleOf(2), 1);
    EXPECT_EQ(throttleOf(3), 0);
    house->game.pass();
}

} // namespace
