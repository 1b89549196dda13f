#include "app/PlayGamestate.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/HelpText.h"
#include "app/QKD_Game.h"
#include "base/Logger.h"
#include "base/Translation.h"
#include "platform/Keyboard.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "scene/SceneGraph.h"

#include <GLFW/glfw3.h>

namespace {

std::vector<TextLine> helpLines()
{
    const std::string drive = translated("Fahren"), shoot = translated("Schiessen"), stop = translated("Handbremse");
    const Control arrows[] = {{drive, translated("Pfeiltasten")}, {shoot, "K"}, {stop, "L"}};
    const Control wasd[] = {{drive, "WASD"}, {shoot, "1"}, {stop, "2"}};
    const Control pad[] = {
        {translated("Gas"), translated("Rechter Trigger")},
        {translated("Bremsen"), translated("Linker Trigger")},
        {translated("Lenken"), translated("Linker Joystick")},
        {shoot, "A"},
        {stop, "B"},
    };
    std::vector<TextLine> lines = {
        {0, "Quackdash!"},
        {2, translated(" Steuerung Pfeiltasten")},
        {7, translated(" Steuerung WASD")},
        {12, translated(" Steuerung XBOX")},
    };
    addControls(lines, 3, "   ", arrows);
    addControls(lines, 8, "   ", wasd);
    addControls(lines, 13, "   ", pad);
    return lines;
}

} // namespace

PlayGamestate::PlayGamestate(const std::string& stateName, QKD_Game& ownGame)
    : IGameState(stateName), game(ownGame), help(helpLines())
{
}

void PlayGamestate::enter()
{
    logLine(2) << "Enter PlayGamestate" << std::endl;
    game.getMatch().layoutViewports();
    collectPlayerViewports();
    fillFreeCell();
    game.getCore()->getRenderer()->setViewports(viewports);
}

void PlayGamestate::collectPlayerViewports()
{
    viewports.clear();
    for (Player* player : game.getMatch().getPlayers()) viewports.push_back(player->getViewport());
}

void PlayGamestate::fillFreeCell()
{
    const auto cell = game.getMatch().freeViewportRect();
    if (!cell) return;
    Node* panoramaNode = game.getScene().getRoot()->find("PanoramaCamera");
    overviews.push_back(std::make_unique<OverviewViewport>(*cell, *panoramaNode));
    viewports.push_back(overviews.back()->getViewport());
}

void PlayGamestate::leave()
{
    logLine(2) << "Leave PlayGamestate" << std::endl;
}

void PlayGamestate::update()
{
    game.getMatch().updateMatch();
    if (isKeyDown(GLFW_KEY_F12)) game.getCore()->getStateManager()->changeState("DebugGamestate");
    if (isKeyDown(GLFW_KEY_ESCAPE)) game.quit();
}

void PlayGamestate::renderCamera(Camera* camera)
{
    if (isKeyDown(GLFW_KEY_F1)) return; // help alone
    for (const Viewport* viewport : viewports)
        if (viewport->camera == camera) game.getMatch().writeSigns(*viewport);
}

void PlayGamestate::drawText(TextRenderer* text)
{
    writeHelp(*text, help);
}
