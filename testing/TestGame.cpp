#include "testing/TestGame.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "platform/DataFolder.h"
#include "render/FrameReader.h"
#include "render/Renderer.h"

TestGame::~TestGame()
{
    getRenderer().terminate();
}

bool TestGame::start()
{
    if (!enterDataFolder() || !QKD_Game::start()) return false;
    keys.emplace();
    if (passSeconds) clock.emplace(*passSeconds);
    return true;
}

void TestGame::play(int passes)
{
    for (int i = 0; i < passes; ++i) {
        updatePass();
        getScene().update();
    }
}

Picture TestGame::draw()
{
    FrameReader reader(getRenderer().getWidth(), getRenderer().getHeight());
    getRenderer().setFrameProbe(&reader);
    drawPass();
    getRenderer().setFrameProbe(nullptr);
    return {getRenderer().getWidth(), getRenderer().getHeight(), reader.getPixels()};
}

Renderer& TestGame::getRenderer()
{
    return *getCore()->getRenderer();
}

std::string TestGame::getStateName() const
{
    return getCore()->getStateManager()->getCurrentState()->getName();
}
