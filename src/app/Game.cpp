#include "app/Game.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "base/FrameTimer.h"
#include "render/DebugRenderer.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"

Game::Game(const GameOptions& ownOptions)
    : options(ownOptions), timer(FrameTimer::getInstance()), core(Core::getInstance())
{
}

bool Game::run()
{
    if (!start()) return false;
    while (!core->getRenderer()->shouldClose() && !quitting) pass();
    core->getRenderer()->terminate();
    return true;
}

bool Game::start()
{
    readAhead();
    if (!core->init(options)) return false;
    loadResources();
    core->getRenderer()->setDebugRenderer(new DebugRenderer());
    init();
    return true;
}

void Game::pass()
{
    if (updatePass()) drawPass();
}

bool Game::updatePass()
{
    core->getRenderer()->getTextRenderer()->clear();
    timer->tick();
    beginPass();
    if (isPassTooLong()) return false;

    frameState = core->getStateManager()->getCurrentState();
    if (core->getRenderer()->followWindow() && frameState) frameState->layOut();
    if (frameState) frameState->update();
    update();
    return true;
}

void Game::drawPass()
{
    core->getRenderer()->render(frameState);
}
