#include "app/PlayGamestate.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/HelpText.h"
#include "app/QKD_Game.h"
#include "app/ShownKeys.h"
#include "base/Logger.h"
#include "platform/Keyboard.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "scene/SceneGraph.h"

#include <GLFW/glfw3.h>

namespace {

std::vector<HelpLine> helpLines(const ControlOptions& controls)
{
    const Buttons drive{
        InputDevice::kAccelerate, InputDevice::kBrake, InputDevice::kSteerLeft, InputDevice::kSteerRight};
    const Buttons accelerate{InputDevice::kAccelerate}, brake{InputDevice::kBrake};
    const Buttons steer{InputDevice::kSteerLeft, InputDevice::kSteerRight};
    const Buttons shoot{InputDevice::kShoot}, handBrake{InputDevice::kHandBrake};
    return {
        {0, "Quackdash!"},
        {2, " Steuerung Pfeiltasten"},
        {3, "   Fahren     > " + shownKeys(controls, 0, drive, "Pfeiltasten")},
        {4, "   Schiessen  > " + shownKeys(controls, 0, shoot, "K")},
        {5, "   Handbremse > " + shownKeys(controls, 0, handBrake, "L")},
        {7, " Steuerung WASD"},
        {8, "   Fahren     > " + shownKeys(controls, 1, drive, "WASD")},
        {9, "   Schiessen  > " + shownKeys(controls, 1, shoot, "1")},
        {10, "   Handbremse > " + shownKeys(controls, 1, handBrake, "2")},
        {12, " Steuerung XBOX"},
        {13, "   Gas        > " + shownPadButtons(controls, accelerate, "Rechter Trigger")},
        {14, "   Bremsen    > " + shownPadButtons(controls, brake, "Linker Trigger")},
        {15, "   Lenken     > " + shownPadButtons(controls, steer, "Linker Joystick")},
        {16, "   Schiessen  > " + shownPadButtons(controls, shoot, "A")},
        {17, "   Handbremse > " + shownPadButtons(controls, handBrake, "B")},
    };
}

} // namespace

PlayGamestate::PlayGamestate(const std::string& stateName, QKD_Game& ownGame, const ControlOptions& controls)
    : IGameState(stateName), game(ownGame), help(wrapped(helpLines(controls)))
{
}

void PlayGamestate::enter()
{
    logLine(2) << "Enter PlayGamestate" << std::endl;
    collectPlayerViewports();
    fillFreeCell();
    layOut();
}

void PlayGamestate::layOut()
{
    game.getMatch().layoutViewports();
    if (const auto cell = game.getMatch().freeViewportRect()) overviews.back()->getViewport()->setRect(*cell);
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

void PlayGamestate::drawText(TextRenderer* text)
{
    writeHelp(*text, help);
}
