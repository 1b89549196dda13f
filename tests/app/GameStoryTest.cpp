#include "StoryGame.h"

#include "app/GameStateManager.h"
#include "app/TestState2.h"
#include "assets/Library.h"
#include "gpu/Shaderprogram.h"
#include "gpu/Texture.h"
#include "physics/PhysicNode.h"
#include "physics/VehicleHandle.h"
#include "players/Ball.h"
#include "players/Player.h"
#include "testing/CapturedLog.h"
#include "testing/Near.h"

#include <GL/glew.h>

#include <cmath>

namespace {

/// Hands over to the match in its first update, and counts the cameras that are drawn for it.
class HastyState final : public IGameState {
public:
    explicit HastyState(GameStateManager& manager) : IGameState("HastyState"), states(manager) {}

    void enter() override {}
    void leave() override {}
    void update() override { states.changeState("PlayGamestate"); }
    void renderCamera(Camera*) override { ++cameras; }

    int cameras = 0;

private:
    GameStateManager& states;
};

using GameStory = StoryGame;

TEST_F(GameStory, BeginsOnTheFirstScreenWithMusicWherePeopleJoinByTheShortestTap)
{
    EXPECT_EQ(game->getStateName(), "RegisterPlayersGamestate");
    EXPECT_EQ(record->sounds, std::vector<std::string>{"musik, looped, 1"});
    GLFWwindow* window = glfwGetCurrentContext();
    EXPECT_EQ(glfwGetInputMode(window, GLFW_STICKY_KEYS), GLFW_TRUE) << "or short taps are lost";
    int x = 0, y = 0;
    glfwGetWindowPos(window, &x, &y);
    EXPECT_EQ(std::pair(x, y), std::pair(300, 30));

    record->sounds.clear();
    tap(GLFW_KEY_K);
    EXPECT_EQ(record->sounds, (std::vector<std::string>{"engine, looped, 0.6", "duck, once, 1"}));
    tap(GLFW_KEY_SPACE);
    EXPECT_EQ(record->sounds.back(), "duck, once, 0.2") << "nobody hears a computer player's engine";
    tap(GLFW_KEY_1);
    pass({}, 60);
    EXPECT_EQ(record->updates, 63) << "the music plays on";
    EXPECT_TRUE(record->texts.empty()) << "no labels yet";
    EXPECT_EQ(game->getStateName(), "RegisterPlayersGamestate");

    CapturedLog log;
    record->sounds.clear();
    tap(GLFW_KEY_TAB);
    EXPECT_EQ(log.text(), "DEBUG | Leave RegisterPlayersGamestate\nDEBUG | Enter PlayGamestate\n");
    EXPECT_EQ(game->getMatch().getActorCount(), 3);
    pass();
    EXPECT_TRUE(record->sounds.empty()) << "nobody has fired";
}

TEST_F(GameStory, GoesOnInTheMatchWithLabelsEnginesAndShots)
{
    record->texts.clear();
    pass({GLFW_KEY_UP, GLFW_KEY_1});
    const std::vector<std::string> labels{"Pl. 1 (0)", "Pfeil", "Pl. 1 (0)", "WASD"};
    EXPECT_EQ(record->texts, labels);
    EXPECT_EQ(record->enginePitches, (std::deque<float>{1, 0}));
    EXPECT_EQ(record->sounds, std::vector<std::string>{"bang, once, 0.3"});
    const auto& balls = game->getMatch().getBalls();
    ASSERT_EQ(balls.size(), 1u);
    EXPECT_EQ(balls[0]->getOwner(), &player(1));
    EXPECT_TRUE(isNear(player(0).getViewport()->clearColour, glm::vec4(0.3f, 0.6f, 1, 1)));

    keys().reset();
    for (const float pitch : {0.0f, 1.0f}) { // brakes at rest, then reverses
        pass({GLFW_KEY_DOWN});
        EXPECT_EQ(record->enginePitches[0], pitch);
    }
}

TEST_F(GameStory, SaysWhoLeadsEveryThreeSeconds)
{
    CapturedLog log;
    Player &shooter = player(0), &victim = player(1);
    pass({}, 25);                               // the last shot is 700 ms ago
    shooter.getVehicle()->placeAt({0, 150, 0}); // far above the ground
    game->getScene().update();
    pass({GLFW_KEY_K});
    game->draw();
    victim.getVehicle()->placeAt({0, 152, 15});
    pass({}, 8);
    ASSERT_EQ(shooter.getScore(), 1);
    game->draw(); // without the ball
    pass({}, 6 * 30);
    EXPECT_EQ(log.count("DEBUG | First:  (1) Player 0, Pfeil\nDEBUG | \n"), 2) << log.text();
    EXPECT_EQ(log.count("Second: "), 0);
    EXPECT_EQ(game->getMatch().getHats().getNode(0)->getParent(), shooter.getChassisNode());
}

TEST_F(GameStory, SkipsAPassOfAThirdOfASecondAndNoShorterOne)
{
    for (const double seconds : {0.32, 0.3326, 0.335, 5.0}) {
        SteppedClock& clock = game->getClock();
        game->updatePass();
        clock.sleep(seconds - kPassSeconds + std::ceil(clock.now() * 1000) / 1000 - clock.now());
        const int updates = record->updates;
        record->texts.clear();
        const bool isShort = seconds < 1.0 / 3.0;
        EXPECT_EQ(game->updatePass(), isShort) << seconds;
        EXPECT_EQ(record->updates - updates, isShort) << seconds;
        EXPECT_EQ(record->texts.empty(), !isShort) << seconds;
    }
}

TEST_F(GameStory, LeavesTheMatchForAFlightInWhichNobodyDrivesAndComesBack)
{
    pass();
    CapturedLog log;
    states().changeState("PlayGamestate"); // where it is
    tap(GLFW_KEY_F12);
    EXPECT_EQ(log.text(), "DEBUG | Leave PlayGamestate\nDEBUG | Enter TestState1\n");
    const auto isCursorCaptured = [] {
        return glfwGetInputMode(glfwGetCurrentContext(), GLFW_CURSOR) == GLFW_CURSOR_DISABLED;
    };
    EXPECT_TRUE(isCursorCaptured());
    const Node& cameraNode = *game->getScene().getRoot()->find("CameraNode");
    EXPECT_TRUE(isNear(cameraNode.getWorldPosition(), glm::vec3(0, 5, -15)));
    EXPECT_TRUE(isNear(-glm::vec3(cameraNode.getWorldTransform()[2]), glm::vec3(0, -0.2588f, 0.9659f)));

    record->texts.clear();
    const int updates = record->updates;
    const glm::vec3 start = cameraNode.getWorldPosition();
    pass({GLFW_KEY_W, GLFW_KEY_LEFT_SHIFT, GLFW_KEY_K}, 10);
    EXPECT_NEAR(glm::distance(cameraNode.getWorldPosition(), start), 10, 0.1f) << "ten units a second of game time";
    EXPECT_TRUE(record->texts.empty()) << "no labels";
    EXPECT_EQ(record->updates - updates, 10) << "the music plays on";

    keys().reset();
    Shaderprogram& wires = *Library::getInstance()->getShaderprogram("WireframeShader");
    wires.createProgram(); // and broken
    CapturedLog keyLog;
    for (const int key : {GLFW_KEY_F3, GLFW_KEY_F5}) tap(key);
    EXPECT_EQ(keyLog.count("DEBUG | FPS: "), 1) << keyLog.text();
    EXPECT_TRUE(wires.isUsable());

    CapturedLog comeback;
    tap(GLFW_KEY_F11);
    EXPECT_EQ(comeback.text(), "DEBUG | Leave TestState1\nDEBUG | Enter PlayGamestate\n");
    EXPECT_FALSE(isCursorCaptured());
    pass();
    EXPECT_FALSE(record->texts.empty());
}

TEST_F(GameStory, HasAFunctionForEachOfItsKeys)
{
    const auto filter = [](GLenum which) {
        GLint value = 0;
        glBindTexture(GL_TEXTURE_2D, Library::getInstance()->getTexture("Grass")->getHandle());
        glGetTexParameteriv(GL_TEXTURE_2D, which, &value);
        return value;
    };
    const auto isWireframe = [] {
        GLint modes[2] = {};
        glGetIntegerv(GL_POLYGON_MODE, modes);
        return modes[0] == GL_LINE;
    };
    EXPECT_FALSE(isWireframe());
    for (int i = 0; i < 3; ++i) tap(GLFW_KEY_F3); // taps in passes without a pause
    EXPECT_TRUE(isWireframe());
    tap(GLFW_KEY_F3);
    EXPECT_FALSE(isWireframe());

    pass({GLFW_KEY_F4}, 2); // held
    keys().reset();
    EXPECT_EQ(filter(GL_TEXTURE_MIN_FILTER), GL_NEAREST_MIPMAP_LINEAR);
    EXPECT_EQ(filter(GL_TEXTURE_MAG_FILTER), GL_NEAREST);
    tap(GLFW_KEY_F5);
    EXPECT_EQ(filter(GL_TEXTURE_MIN_FILTER), GL_NEAREST);
    for (const int key : {GLFW_KEY_F4, GLFW_KEY_F5, GLFW_KEY_F5}) tap(key);
    EXPECT_EQ(filter(GL_TEXTURE_MIN_FILTER), GL_LINEAR_MIPMAP_LINEAR);

    tap(GLFW_KEY_F9);
    game->getRenderer().setBlending(true);
    EXPECT_FALSE(glIsEnabled(GL_BLEND));
    tap(GLFW_KEY_F9);

    CapturedLog log;
    Library::getInstance()->getTexture("Grass")->load("absent.tga");
    pass({GLFW_KEY_F7}, 2);
    EXPECT_EQ(log.count("Linking program\n"), 2 * 17) << "every program, in every pass";
    GLint width = 0;
    glBindTexture(GL_TEXTURE_2D, Library::getInstance()->getTexture("Grass")->getHandle());
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &width);
    EXPECT_GT(width, 0) << "every picture";
    keys().reset();
}

TEST_F(GameStory, DrawsAFrameForTheStateThatBeganItAndEndsByEscape)
{
    HastyState hasty(states());
    TestState2 quiet("TestState2");
    states().addState(&hasty);
    states().addState(&quiet);
    CapturedLog log;
    states().changeState("TestState2");
    pass();
    states().changeState("HastyState");
    EXPECT_TRUE(log.contains("DEBUG | Enter TestState2\nDEBUG | Leave TestState2\n"));
    game->pass();
    EXPECT_EQ(game->getStateName(), "PlayGamestate");
    EXPECT_EQ(hasty.cameras, 2) << "one for each view of the match";
    game->pass();
    EXPECT_EQ(hasty.cameras, 2);

    tap(GLFW_KEY_F12);
    EXPECT_FALSE(game->isQuitting());
    tap(GLFW_KEY_ESCAPE);
    EXPECT_TRUE(game->isQuitting());
}

} // namespace
