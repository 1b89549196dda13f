#include "app/PlayGamestate.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/HelpText.h"
#include "app/QKD_Game.h"
#include "app/ShownKeys.h"
#include "base/Logger.h"
#include "base/Translation.h"
#include "platform/Keyboard.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "scene/SceneGraph.h"

#include <GLFW/glfw3.h>

#include <algorithm>

namespace {

std::vector<TextLine> helpLines(const ControlOptions& controls)
{
    const Buttons drive{
        InputDevice::kAccelerate, InputDevice::kBrake, InputDevice::kSteerLeft, InputDevice::kSteerRight};
    const Buttons accelerate{InputDevice::kAccelerate}, brake{InputDevice::kBrake};
    const Buttons steer{InputDevice::kSteerLeft, InputDevice::kSteerRight};
    const Buttons shoot{InputDevice::kShoot}, handBrake{InputDevice::kHandBrake};
    const std::string driving = translated("Fahren");
    const std::string shooting = translated("Schiessen");
    const std::string stopping = translated("Handbremse");
    const Control arrows[] = {
        {driving, shownKeys(controls, 0, drive, translated("Pfeiltasten"))},
        {shooting, shownKeys(controls, 0, shoot, "K")},
        {stopping, shownKeys(controls, 0, handBrake, "L")},
    };
    const Control wasd[] = {
        {driving, shownKeys(controls, 1, drive, "WASD")},
        {shooting, shownKeys(controls, 1, shoot, "1")},
        {stopping, shownKeys(controls, 1, handBrake, "2")},
    };
    const Control pad[] = {
        {translated("Gas"), shownPadButtons(controls, accelerate, translated("Rechter Trigger"))},
        {translated("Bremsen"), shownPadButtons(controls, brake, translated("Linker Trigger"))},
        {translated("Lenken"), shownPadButtons(controls, steer, translated("Linker Joystick"))},
        {shooting, shownPadButtons(controls, shoot, "A")},
        {stopping, shownPadButtons(controls, handBrake, "B")},
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
    std::ranges::sort(lines, {}, &TextLine::number);
    return wrapped(lines);
}

} // namespace

PlayGamestate::PlayGamestate(const std::string& stateName, QKD_Game& ownGame, const ControlOptions& controls,
    std::unique_ptr<ScreenSaver> ownSaver)
    : IGameState(stateName), game(ownGame), help(helpLines(controls)), screenSaver(std::move(ownSaver))
{
}

void PlayGamestate::enter()
{
    logLine(2) << "Enter PlayGamestate" << std::endl;
    collectPlayerViewports();
    fillFreeCell();
    layOut();
    screenSaver->inhibit();
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
    screenSaver->release();
}

void PlayGamestate::update()
{
    game.getMatch().updateMatch();
    screenSaver->update();
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
