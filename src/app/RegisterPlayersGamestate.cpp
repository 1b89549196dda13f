#include "app/RegisterPlayersGamestate.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/HelpText.h"
#include "app/QKD_Game.h"
#include "app/ShownKeys.h"
#include "base/Logger.h"
#include "base/Translation.h"
#include "platform/Keyboard.h"
#include "render/Renderer.h"
#include "scene/Node.h"
#include "scene/SceneGraph.h"
#include "scene/Transforms.h"

#include <GLFW/glfw3.h>

namespace {

std::vector<Control> joinKeys(const ControlOptions& controls)
{
    const Buttons shoot{InputDevice::kShoot};
    return {
        {translated("Pfeiltasten"), shownKeys(controls, 0, shoot, "K")},
        {"WASD", shownKeys(controls, 1, shoot, "1")},
        {"XBOX", shownPadButtons(controls, shoot, "A")},
    };
}

std::vector<TextLine> helpLines(const ControlOptions& controls)
{
    std::vector<TextLine> lines = {
        {0, "Quackdash!"},
        {2, translated("  Schiesse deine Gegner ab ohne")},
        {3, translated("  selbst abgeschossen zu werden")},
        {4, translated("  und werde der Punkte-Champion")},
        {6, translated("Bitte registriere deine Spieler")},
        {8, translated("Steuerung:")},
    };
    addControls(lines, 9, "  ", joinKeys(controls));
    lines.push_back({13, translated("Um das Spiel zu starten:")});
    lines.push_back({14, "  " + shownStart(controls, translated("Enter oder Start"))});
    return wrapped(lines);
}

std::vector<TextLine> hintLines(const ControlOptions& controls)
{
    std::vector<TextLine> lines = {{0, "Quackdash!"}, {2, translated("Mitspielen:")}};
    addControls(lines, 3, "  ", joinKeys(controls));
    lines.push_back({7, translated("Hilfe: F1")});
    return wrapped(lines);
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
    const GameOptions& options)
    : IGameState(stateName), game(ownGame), view(ownGame.getWindowRect(), createPanoramaNode(ownGame)),
      registration(ownGame.getMatch(), ownGame.getOutside().makeDevices(options.controls), options.start.names),
      help(helpLines(options.controls))
{
    if (options.text.hint) hint = hintLines(options.controls);
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
    if (game.getMatch().getHumanPlayerCount() == 0) writeHelp(*game.getCore()->getRenderer()->getTextRenderer(), hint);
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
