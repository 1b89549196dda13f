#include "app/Game.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "base/FrameTimer.h"
#include "render/DebugRenderer.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"

namespace {
constexpr float kLongestPass =
    1.0f; // seconds of game time; a pass of that length or more is neither computed nor drawn
}

Game::Game() : timer(FrameTimer::getInstance()), core(Core::getInstance()) {}

bool Game::run()
{
    if (!core->init()) return false;

    loadResources();
    Renderer* renderer = core->getRenderer();
    renderer->setDebugRenderer(new DebugRenderer());
    init();

    while (!renderer->shouldClose() && !quitting) runPass();

    renderer->terminate();
    return true;
}

void Game::runPass()
{
    core->getRenderer()->getTextRenderer()->clear();
    timer->tick();
    const bool shortEnough = gameDelta() < kLongestPass;
    if (!shortEnough) return;

    // The frame belongs to the state that began it, even if that state hands over to another during its update.
    IGameState* state = core->getStateManager()->getCurrentState();
    if (state) state->update();
    update();
    core->getRenderer()->render(state);
}
