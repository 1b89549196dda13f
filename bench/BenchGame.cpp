#include "BenchGame.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "platform/DataFolder.h"
#include "render/DebugRenderer.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"

bool BenchGame::start()
{
    if (!enterDataFolder() || !getCore()->init()) return false;
    FrameTimer::getInstance()->setClock(&clock);
    loadResources();
    getRenderer().setDebugRenderer(new DebugRenderer());
    init();
    return true;
}

void BenchGame::startMatch(int humans, int participants)
{
    for (int i = 0; i < humans; ++i) {
        devices.push_back(std::make_unique<WanderingDevice>(static_cast<unsigned>(i)));
        addPlayer(devices.back().get());
    }
    while (getActorCount() < participants) addComputerPlayer();
    getCore()->getStateManager()->changeState("PlayGamestate");
}

void BenchGame::pass()
{
    updateOnly();
    drawOnly();
}

void BenchGame::updateOnly()
{
    getRenderer().getTextRenderer()->clear();
    clock.advance();
    FrameTimer::getInstance()->tick();
    getCore()->getStateManager()->getCurrentState()->update();
    update();
}

void BenchGame::drawOnly()
{
    getRenderer().render(getCore()->getStateManager()->getCurrentState());
}

Renderer& BenchGame::getRenderer()
{
    return *getCore()->getRenderer();
}
