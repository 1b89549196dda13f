#pragma once

#include "base/IGameState.h"

#include <map>
#include <string>

/// Keeps the game's states by name and knows which one is current. Owned by Core; borrows the states, which the game
/// creates once.
class GameStateManager {
public:
    /// Store a state under its getName(); an earlier state of that name is forgotten without notice.
    void addState(IGameState* state);

    /// Leave the current state and enter the named one; do nothing when that is current already. A name that was never
    /// added is a programming error and stops the program.
    void changeState(const std::string& name);

    IGameState* getCurrentState() const { return current; } ///< null before the first change

private:
    IGameState* current = nullptr;
    std::map<std::string, IGameState*> states;
};
