#include "app/Core.h"
#include "app/GameStateManager.h"
#include "assets/Library.h"
#include "base/IGameState.h"
#include "gpu/Shaderprogram.h"
#include "match/ViewportLayout.h"
#include "physics/VehicleHandle.h"
#include "players/Ball.h"
#include "players/Player.h"
#include "render/FrameProbe.h"
#include "render/Renderer.h"
#include "scene/SceneGraph.h"
#include "testing/GlErrors.h"
#include "testing/Picture.h"
#include "testing/ScriptedKeyboard.h"
#include "testing/TestGame.h"
#include "testing/VirtualPad.h"

#include <GL/gl.h>
#include <gtest/gtest.h>
#include <vehicle/PxVehicleDrive4W.h>

#include <algorithm>
#include <array>
#include <set>

namespace {

constexpr int kPadCount = 4;
constexpr int kComputerPlayers = 10;
constexpr int kFullTrigger = SDL_JOYSTICK_AXIS_MAX;

/// Keeps what the window shows.
class Screen : public IFrameProbe {
public:
    void stepDone(const char* step) override
    {
        if (step == std::string("CelPostProc"))
            glReadPixels(0, 0, 1024, 768, GL_RGB, GL_UNSIGNED_BYTE, whole.pixels.data());
    }

    /// A viewport's picture, upside down.
    Picture cell(const Viewport::Rect& rect) const
    {
        Picture part{rect.width, rect.height, {}};
        for (int y = rect.y; y < rect.y + rect.height; ++y)
            part.pixels.insert(part.pixels.end(), whole.at(rect.x, y), whole.at(rect.x, y) + 3 * rect.width);
        return part;
    }

private:
    Picture whole{1024, 768, std::vector<unsigned char>(1024 * 768 * 3)};
};

/// The whole game with its window: six people, four of them with game-pads, and ten computer players have joined on the
/// registration screen. There is one game to a process, so the tests share the match.
class FullHouse : public testing::Test {
protected:
    struct House {
        PadLibrary library;
        std::array<VirtualPad, kPadCount> pads;
        TestGame game;
        std::unique_ptr<ScriptedKeyboard> keys; // once the window no longer puts its own in place
    };

    static void SetUpTestSuite()
    {
        house = std::make_unique<House>();
        ASSERT_TRUE(game().start()) << "no OpenGL 4.3 core context; is there a display?";
        failTestsOnGlErrors();
        house->keys = std::make_unique<ScriptedKeyboard>();
        join();
    }

    static void TearDownTestSuite()
    {
        game().getRenderer().terminate();
        house.reset();
    }

    static void join()
    {
        for (VirtualPad& pad : house->pads) pad.press(SDL_CONTROLLER_BUTTON_A);
        keys().hold({GLFW_KEY_K, GLFW_KEY_1});
        game().pass();
        for (VirtualPad& pad : house->pads) pad.release(SDL_CONTROLLER_BUTTON_A);
        for (int i = 0; i < kComputerPlayers; ++i) {
            keys().hold({});
            pass();
            ASSERT_EQ(stateName(), "RegisterPlayersGamestate") << i;
            keys().hold({GLFW_KEY_SPACE});
            pass();
        }
        keys().hold({});
    }

    FullHouse()
    {
        keys().hold({});
        for (VirtualPad& pad : house->pads) {
            pad.release(SDL_CONTROLLER_BUTTON_A);
            pad.move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, SDL_JOYSTICK_AXIS_MIN);
        }
        pass();
    }

    static TestGame& game() { return house->game; }
    static ScriptedKeyboard& keys() { return *house->keys; }
    static VirtualPad& pad(int slot) { return house->pads.at(static_cast<std::size_t>(slot)); }
    static Player& player(int i) { return *game().getMatch().getPlayers().at(static_cast<std::size_t>(i)); }
    static std::string stateName() { return game().getCore()->getStateManager()->getCurrentState()->getName(); }

    /// A pass of the main loop without the picture.
    static void pass()
    {
        game().updatePass();
        game().getScene().update();
    }

    /// A pass whose picture is kept.
    static Screen draw()
    {
        game().updatePass();
        return drawAgain();
    }

    static Screen drawAgain()
    {
        Screen screen;
        game().getRenderer().setFrameProbe(&screen);
        game().drawPass();
        game().getRenderer().setFrameProbe(nullptr);
        return screen;
    }

    /// How much of the golden hat a person sees.
    static int goldenPixels(int i)
    {
        const Picture view = draw().cell(viewportCell(kMaxHumanPlayers, i, 1024, 768));
        int golden = 0;
        for (std::size_t at = 0; at < view.pixels.size(); at += 3) {
            const int red = view.pixels[at], green = view.pixels[at + 1], blue = view.pixels[at + 2];
            golden += red > 100 && green > 0.72 * red && green < 0.95 * red && blue < 0.2 * red;
        }
        return golden;
    }

    static bool passesUntil(int most, const std::function<bool()>& condition)
    {
        for (int i = 0; i < most && !condition(); ++i) i % 25 == 0 ? game().pass() : pass();
        return condition();
    }

    static float throttleOf(const Player& player) { return player.getVehicle()->getRawInputs().getAnalogAccel(); }

    static void steppedOn(int i, bool down)
    {
        if (i < kPadCount) pad(i).move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, down ? kFullTrigger : SDL_JOYSTICK_AXIS_MIN);
        else if (down) keys().hold({i == kPadCount ? GLFW_KEY_UP : GLFW_KEY_W});
        else keys().reset();
    }

    static std::unique_ptr<House> house;
};

std::unique_ptr<FullHouse::House> FullHouse::house;

TEST_F(FullHouse, StartsAtOnceWithSixteenCarsAndSixViews)
{
    EXPECT_EQ(stateName(), "PlayGamestate");
    ASSERT_EQ(game().getMatch().getActorCount(), 16);
    ASSERT_EQ(game().getMatch().getHumanPlayerCount(), kMaxHumanPlayers);

    const Screen screen = draw();
    const char* const devices[] = {"XBOX 1", "XBOX 2", "XBOX 3", "XBOX 4", "Pfeil", "WASD"};
    Picture before;
    for (int i = 0; i < kMaxHumanPlayers; ++i) {
        EXPECT_EQ(player(i).getDevice().getName(), devices[i]);
        const Picture view = screen.cell(viewportCell(kMaxHumanPlayers, i, 1024, 768));
        EXPECT_GT(detailShare(view, view.whole()), 0.1) << "view " << i << " is blank";
        EXPECT_TRUE(i == 0 || changedShare(before, view, view.whole()) > 0.1) << "view " << i << " is the one before";
        before = view;
    }
}

TEST_F(FullHouse, GroundFarAwayLooksAsIfItWereDrawnInPatchesToo)
{
    const Screen usual = drawAgain();
    Library::getInstance()
        ->getShaderprogram("TerrainFar")
        ->createProgram(); // not linked: everything is drawn in patches
    const Screen patches = drawAgain();
    Library::getInstance()->loadShader("TerrainFar", "Shader/TerrainFar.shader");

    constexpr double kSmoke = 0.03; // what rises from one drawing to the next
    for (int i = 0; i < kMaxHumanPlayers; ++i) {
        const Picture view = usual.cell(viewportCell(kMaxHumanPlayers, i, 1024, 768));
        EXPECT_LT(changedShare(view, patches.cell(viewportCell(kMaxHumanPlayers, i, 1024, 768)), view.whole()), kSmoke)
            << "view " << i;
    }
}

TEST_F(FullHouse, TheLeaderSeesTheGoldenHatOnTheirDuck)
{
    Player& leader = player(0);
    Player& victim = player(1);
    EXPECT_LT(goldenPixels(0), 30);
    leader.addScore(1000);
    const int score = leader.getScore();
    for (int i = 0; i < 60; ++i) pass();       // the last shot is 700 ms ago
    leader.getVehicle()->placeAt({0, 150, 0}); // far above everybody else
    pass();
    pad(0).press(SDL_CONTROLLER_BUTTON_A);
    pass();
    pad(0).release(SDL_CONTROLLER_BUTTON_A);
    victim.getVehicle()->placeAt({0, 152, 15});
    ASSERT_TRUE(passesUntil(30, [&] { return leader.getScore() > score; })) << "missed";
    EXPECT_GT(goldenPixels(0), 300);
}

TEST_F(FullHouse, EverybodyDrivesTheirOwnCarAndShoots)
{
    for (int driver = 0; driver < kMaxHumanPlayers; ++driver) {
        steppedOn(driver, true);
        pass();
        for (int i = 0; i < kMaxHumanPlayers; ++i)
            EXPECT_EQ(throttleOf(player(i)), i == driver ? 1 : 0) << driver << " drives " << i;
        steppedOn(driver, false);
    }

    keys().hold({GLFW_KEY_UP, GLFW_KEY_W, GLFW_KEY_K, GLFW_KEY_1});
    for (VirtualPad& pad : house->pads) {
        pad.move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, kFullTrigger);
        pad.press(SDL_CONTROLLER_BUTTON_A);
    }
    std::set<const Player*> driving, shooting;
    const auto everybodyDoesBoth = [&] {
        for (const Player* actor : game().getMatch().getActors()) {
            if (actor->getForwardSpeed() > 4) driving.insert(actor);
        }
        for (const auto& ball : game().getMatch().getBalls()) shooting.insert(ball->getOwner());
        return driving.size() == 16 && shooting.size() == 16;
    };
    EXPECT_TRUE(passesUntil(2000, everybodyDoesBoth)) << driving.size() << " drive, " << shooting.size() << " shoot";
    EXPECT_NE(game().getMatch().getRanking().getLeader(0), nullptr) << "nobody was hit";
}

} // namespace
