#pragma once

#include "WanderingDevice.h"
#include "app/Core.h"
#include "app/GameStateManager.h"
#include "testing/TestGame.h"

#include <deque>

/// The whole game with people who drive by themselves.
class BenchGame : public TestGame {
public:
    using TestGame::TestGame;

    /// Have that many people join, each with a viewport, and computer players up to `participants` in all; start the
    /// match.
    void startMatch(int humans, int participants)
    {
        for (int i = 0; i < humans; ++i) getMatch().addPlayer(devices.emplace_back(static_cast<unsigned>(i)));
        while (getMatch().getActorCount() < participants) getMatch().addComputerPlayer();
        getCore()->getStateManager()->changeState("PlayGamestate");
    }

private:
    std::deque<WanderingDevice> devices;
};
