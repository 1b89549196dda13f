#pragma once

#include "app/QKD_Game.h"
#include "players/IPresentation.h"
#include "testing/SteppedClock.h"
#include "testing/WanderingDevice.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The whole game, window included, in the hands of a test, a benchmark or a tool: players that drive by themselves, a
/// stepped clock, and a pass that can be taken apart.
class TestGame : public QKD_Game {
public:
    /// passSeconds: see SteppedClock; nothing for passes of real time.
    explicit TestGame(std::optional<double> passLength = 1.0 / 60.0) : passSeconds(passLength) {}

    /// Seen and heard by way of another presentation.
    TestGame(double passLength, std::unique_ptr<IPresentation> shown)
        : QKD_Game(std::move(shown)), passSeconds(passLength)
    {
    }

    /// Opens the window, loads everything and builds the world. False when there is no display.
    [[nodiscard]] bool start();

    /// Has that many people join, each with a viewport, and computer players up to `participants` in all; starts the
    /// match.
    void startMatch(int humans, int participants);

    Renderer& getRenderer();
    SteppedClock& getClock() { return *clock; } ///< from start() on, unless in real time
    std::string getStateName() const;           ///< of the current state

private:
    std::optional<double> passSeconds;
    std::optional<SteppedClock> clock; // once the window no longer puts its own in place
    std::vector<std::unique_ptr<WanderingDevice>> devices;
};
