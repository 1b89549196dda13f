#include "testing/TestGame.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "platform/DataFolder.h"

bool TestGame::start()
{
    if (!enterDataFolder() || !QKD_Game::start()) return false;
    if (passSeconds) clock.emplace(*passSeconds);
    return true;
}

void TestGame::startMatch(int humans, int participants)
{
    for (int i = 0; i < humans; ++i) {
        devices.push_back(std::make_unique<WanderingDevice>(static_cast<unsigned>(i)));
        getMatch().addPlayer(*devices.back());
    }
    while (getMatch().getActorCount() < participants) getMatch().addComputerPlayer();
    getCore()->getStateManager()->changeState("PlayGamestate");
}

Renderer& TestGame::getRenderer()
{
    return *getCore()->getRenderer();
}

std::string TestGame::getStateName() const
{
    return getCore()->getStateManager()->getCurrentState()->getName();
}
