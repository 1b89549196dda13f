#include "app/GameStateManager.h"

#include "base/Assert.h"

void GameStateManager::addState(IGameState* state)
{
    states[state->getName()] = state;
}

void GameStateManager::changeState(const std::string& name)
{
    IGameState* newstate = states[name];
    QKD_ASSERT(newstate, "newstate != nullptr");
    if (newstate == current) return;

    if (current) current->leave();
    current = newstate;
    current->enter();
}
