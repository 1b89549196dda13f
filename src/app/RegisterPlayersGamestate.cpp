#include "app/RegisterPlayersGamestate.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/HelpText.h"
#include "app/QKD_Game.h"
#include "app/ShownKeys.h"
#include "base/Logger.h"
#include "platform/Keyboard.h"
#include "render/Renderer.h"
#include "scene/Node.h"
#include "scene/SceneGraph.h"
#include "scene/Transforms.h"

#include <GLFW/glfw3.h>

namespace {

std::vector<HelpLine> helpLines(const ControlOptions& controls)
{
    const Buttons shoot{InputDevice::kShoot};
    return {
        {0, "Quackdash!"},
        {2, "  Schiesse deine Gegner ab ohne"},
        {3, "  selbst abgeschossen zu werden"},
        {4, "  und werde der Punkte-Champion"},
        {6, "Bitte registriere deine Spieler"},
        {8, "Steuerung:"},
        {9, "  Pfeiltasten > " + shownKeys(controls, 0, shoot, "K")},
        {10, "  WASD        > " + shownKeys(controls, 1, shoot, "1")},
        {11, "  XBOX        > " + shownPadButtons(controls, shoot, "A")},
        {13, "Um das Spiel zu starten:"},
        {14, "  " + shownStart(controls, "Enter oder Start")},
    };
}

/// High above the field's edge, looking down onto it.
Node& createPanoramaNode(QKD_Game& game)
{
    Node* node = new Node("PanoramaCamera");
    game.getScene().getRoot()->addChild(node);
    node->transform(translation(glm::vec3(0, 150, -50)), true);
    node->transform(rotation(180, glm::vec3(0, 1, 0)), true);
    node->transform(rotation(-70, glm::vec3(1, 0, 0)), true);
    return *node;
}

} // namespace

RegisterPlayersGamestate::RegisterPlayersGamestate(const std::string& stateName, QKD_Game& ownGame,
    const ControlOptions& controls)
    : IGameState(stateName), game(ownGame), view(ownGame.getWindowRect(), createPanoramaNode(ownGame)),
      registration(ownGame.getMatch(), controls), help(wrapped(helpLines(controls)))
{
}

void RegisterPlayersGamestate::enter()
{
    logLine(2) << "Enter RegisterPlayersGamestate" << std::endl;
    layOut();
    registration.restart();
}

void RegisterPlayersGamestate::layOut()
{
    view.getViewport()->setRect(game.getWindowRect());
    game.getCore()->getRenderer()->setViewports({view.getViewport()});
}

void RegisterPlayersGamestate::leave()
{
    logLine(2) << "Leave RegisterPlayersGamestate" << std::endl;
}

void RegisterPlayersGamestate::update()
{
    registration.update();
    if (isKeyDown(GLFW_KEY_ESCAPE)) game.quit();
    if (registration.shouldStart()) game.getCore()->getStateManager()->changeState("PlayGamestate");
}

void RegisterPlayersGamestate::admit(const StartOptions& start)
{
    registration.admit(start);
    if (!start.atOnce) return;
    if (registration.mayStart()) game.getCore()->getStateManager()->changeState("PlayGamestate");
    else logLine(1) << "Not started at once: that takes two, and one of them with a device" << std::endl;
}

void RegisterPlayersGamestate::drawText(TextRenderer* text)
{
    writeHelp(*text, help);
}
