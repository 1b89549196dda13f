#include "StoryGame.h"

#include "input/InputDevice.h"
#include "physics/VehicleHandle.h"
#include "players/Ball.h"
#include "testing/VirtualPad.h"

#include <vehicle/PxVehicleDrive4W.h>

#include <deque>
#include <set>

namespace {

constexpr int kPadCount = 4;
constexpr int kPeople = 6;
constexpr int kComputerPlayers = 10;

/// Everybody for whom the game has room.
class FullHouse : public StoryGame {
public:
    static void SetUpTestSuite()
    {
        GameOptions options;
        options.controls.pads[2][InputDevice::kShoot] = "x";
        begin(options);
        library = std::make_unique<PadLibrary>();
        for (int i = 0; i < kPadCount; ++i) pads.emplace_back();
    }

    static void TearDownTestSuite()
    {
        pads.clear();
        library.reset();
    }

protected:
    static float throttleOf(int i) { return player(i).getVehicle()->getRawInputs().getAnalogAccel(); }

    static void stepOn(int i, bool down)
    {
        if (i < kPadCount) {
            VirtualPad& pad = pads[static_cast<std::size_t>(i)];
            pad.move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, down ? SDL_JOYSTICK_AXIS_MAX : SDL_JOYSTICK_AXIS_MIN);
        } else if (down) {
            keys().hold({i == kPadCount ? GLFW_KEY_UP : GLFW_KEY_W});
        } else {
            keys().reset();
        }
    }

    static void shoot(bool down)
    {
        for (std::size_t i = 0; i < kPadCount; ++i) {
            const auto button = i == 2 ? SDL_CONTROLLER_BUTTON_X : SDL_CONTROLLER_BUTTON_A;
            if (down) pads[i].press(button);
            else pads[i].release(button);
        }
    }

    static inline std::unique_ptr<PadLibrary> library;
    static inline std::deque<VirtualPad> pads;
};

TEST_F(FullHouse, StartsByItselfWithTheSixteenth)
{
    pass({GLFW_KEY_ESCAPE});
    EXPECT_TRUE(game->isQuitting()) << "which ends a loop that isn't running here";
    shoot(true);
    pass({GLFW_KEY_K, GLFW_KEY_1});
    shoot(false);
    for (int i = 0; i < kComputerPlayers; ++i) {
        EXPECT_EQ(game->getStateName(), "RegisterPlayersGamestate") << i;
        tap(GLFW_KEY_SPACE);
    }
    EXPECT_EQ(game->getStateName(), "PlayGamestate");
    EXPECT_EQ(game->getMatch().getActorCount(), 16);
    const char* const devices[kPeople] = {"XBOX 1", "XBOX 2", "XBOX 3", "XBOX 4", "Pfeil", "WASD"};
    for (int i = 0; i < kPeople; ++i) EXPECT_EQ(player(i).getDevice().getName(), devices[i]);
    for (int i = 0; i < kPadCount; ++i) {
        const auto& shown = pads[static_cast<std::size_t>(i)].colour;
        const glm::vec3 light = glm::vec3(shown[0], shown[1], shown[2]) / 255.0f;
        EXPECT_LT(glm::distance(light, glm::vec3(player(i).getColor())), 0.01f) << "pad " << i;
    }
    game->pass();
}

TEST_F(FullHouse, LetsEverybodyDriveTheirOwnCarAndShoot)
{
    for (int driver = 0; driver < kPeople; ++driver) {
        stepOn(driver, true);
        game->play();
        for (int i = 0; i < kPeople; ++i) EXPECT_EQ(throttleOf(i), i == driver) << driver << " drives " << i;
        stepOn(driver, false);
    }

    keys().hold({GLFW_KEY_UP, GLFW_KEY_W, GLFW_KEY_K, GLFW_KEY_1});
    for (int i = 0; i < kPadCount; ++i) stepOn(i, true);
    shoot(true);
    std::set<const Player*> driving, shooting;
    for (int i = 0; i < 2000 && driving.size() + shooting.size() < 32; ++i) {
        game->play();
        for (const Player* actor : game->getMatch().getActors())
            if (actor->getForwardSpeed() > 4) driving.insert(actor);
        for (const auto& ball : game->getMatch().getBalls()) shooting.insert(ball->getOwner());
    }
    EXPECT_EQ(driving.size(), 16u);
    EXPECT_EQ(shooting.size(), 16u);
    EXPECT_NE(game->getMatch().getRanking().getLeader(0), nullptr) << "nobody was hit";
}

TEST_F(FullHouse, GivesTheCarOfALostPadToTheNextPadThatComes)
{
    for (int i = 0; i < kPadCount; ++i) stepOn(i, false);
    pads[2].unplug();
    game->play();
    VirtualPad& other = pads.emplace_back(2); // of another kind
    game->play();
    other.move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, SDL_JOYSTICK_AXIS_MAX);
    game->play();
    EXPECT_EQ(throttleOf(2), 1);
    EXPECT_EQ(throttleOf(3), 0);
    game->pass();
}

} // namespace
