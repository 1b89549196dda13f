#pragma once

#include "base/IGameState.h"

/// A state that only logs its entry and its exit. The game does not create it; tests change states with it.
class TestState2 final : public IGameState {
public:
    using IGameState::IGameState;

    void enter() override;
    void leave() override;
    void update() override {}
    void renderCamera(Camera*) override {}
};
