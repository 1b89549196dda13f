#include "app/PlayGamestate.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/HelpText.h"
#include "app/QKD_Game.h"
#include "base/Logger.h"
#include "platform/Keyboard.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "scene/SceneGraph.h"

#include <GLFW/glfw3.h>

namespace {

constexpr HelpLine kHelp[] = {
    {0, "Quackdash!"},
    {2, " Steuerung Pfeiltasten"},
    {3, "   Fahren     > Pfeiltasten"},
    {4, "   Schiessen  > K"},
    {5, "   Handbremse > L"},
    {7, " Steuerung WASD"},
    {8, "   Fahren     > WASD"},
    {9, "   Schiessen  > 1"},
    {10, "   Handbremse > 2"},
    {12, " Steuerung XBOX"},
    {13, "   Gas        > Rechter Trigger"},
    {14, "   Bremsen    > Linker Trigger"},
    {15, "   Lenken     > Linker Joystick"},
    {16, "   Schiessen  > A"},
    {17, "   Handbremse > B"},
};

} // namespace

PlayGamestate::PlayGamestate(const std::string& stateName, QKD_Game& ownGame, std::unique_ptr<ScreenSaver> ownSaver)
    : IGameState(stateName), game(ownGame), screenSaver(std::move(ownSaver))
{
}

void PlayGamestate::enter()
{
    logLine(2) << "Enter PlayGamestate" << std::endl;
    game.getMatch().layoutViewports();
    collectPlayerViewports();
    fillFreeCell();
    game.getCore()->getRenderer()->setViewports(viewports);
    screenSaver->inhibit();
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
    screenSaver->release();
}

void PlayGamestate::update()
{
    game.getMatch().updateMatch();
    screenSaver->update();
    if (isKeyDown(GLFW_KEY_F12)) game.getCore()->getStateManager()->changeState("DebugGamestate");
    if (isKeyDown(GLFW_KEY_ESCAPE)) game.quit();
}

void PlayGamestate::drawText(TextRenderer* text)
{
    writeHelp(*text, kHelp);
}
