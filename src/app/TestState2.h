#pragma once

#include "base/IGameState.h"

/// The smallest state there is: says in the log that it comes and goes, and does nothing in between. No game creates
/// one; it is there to try the changing of states with.
class TestState2 final : public IGameState {
public:
    using IGameState::IGameState;

    void enter() override;
    void leave() override;
    void update() override {}
    void renderCamera(Camera*) override {}
};
