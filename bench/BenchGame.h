#pragma once

#include "SteppedClock.h"
#include "WanderingDevice.h"
#include "app/QKD_Game.h"

#include <memory>
#include <vector>

class IGameState;

/// The whole game, window included, with a hand on its loop: players that drive by themselves, a clock that the
/// benchmark steps, and a pass that can be taken apart.
class BenchGame : public QKD_Game {
public:
    /// Opens the window, loads everything and builds the world. False when there is no display.
    [[nodiscard]] bool start();

    /// Has that many people join, each with a viewport, and computer players up to `participants` in all; starts the
    /// match.
    void startMatch(int humans, int participants);

    void pass();             ///< one pass of the main loop on the stepped clock
    using QKD_Game::runPass; ///< for real time: the game's own, once the frame timer has its own clock back
    void updateOnly();
    void drawOnly();

    Renderer& getRenderer();

private:
    SteppedClock clock;
    std::vector<std::unique_ptr<WanderingDevice>> devices;
};
