#include "app/RegisterPlayersGamestate.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/HelpText.h"
#include "app/QKD_Game.h"
#include "base/Logger.h"
#include "base/Translation.h"
#include "platform/Keyboard.h"
#include "render/Renderer.h"
#include "scene/Node.h"
#include "scene/SceneGraph.h"
#include "scene/Transforms.h"

#include <GLFW/glfw3.h>

namespace {

std::vector<Control> joinKeys()
{
    return {{translated("Pfeiltasten"), "K"}, {"WASD", "1"}, {"XBOX", "A"}};
}

std::vector<TextLine> helpLines()
{
    std::vector<TextLine> lines = {
        {0, "Quackdash!"},
        {2, translated("  Schiesse deine Gegner ab ohne")},
        {3, translated("  selbst abgeschossen zu werden")},
        {4, translated("  und werde der Punkte-Champion")},
        {6, translated("Bitte registriere deine Spieler")},
        {8, translated("Steuerung:")},
        {13, translated("Um das Spiel zu starten:")},
        {14, translated("  Enter oder Start")},
    };
    addControls(lines, 9, "  ", joinKeys());
    return lines;
}

std::vector<TextLine> hintLines()
{
    std::vector<TextLine> lines = {{0, "Quackdash!"}, {2, translated("Mitspielen:")}, {7, translated("Hilfe: F1")}};
    addControls(lines, 3, "  ", joinKeys());
    return lines;
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
    const PlayerNames& names, bool withHint)
    : IGameState(stateName), game(ownGame), view(ownGame.getWindowRect(), createPanoramaNode(ownGame)),
      registration(ownGame.getMatch(), names), help(helpLines())
{
    if (withHint) hint = hintLines();
}

void RegisterPlayersGamestate::enter()
{
    logLine(2) << "Enter RegisterPlayersGamestate" << std::endl;
    game.getCore()->getRenderer()->setViewports({view.getViewport()});
    registration.restart();
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
