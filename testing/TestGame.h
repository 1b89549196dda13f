#pragma once

#include "app/QKD_Game.h"
#include "base/SteppedClock.h"
#include "players/IPresentation.h"
#include "testing/Picture.h"
#include "testing/ScriptedKeyboard.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

/// The whole game, window included, in the hands of a test, a benchmark or a tool: a scripted keyboard, a stepped
/// clock, and a pass that can be taken apart. Closes its window as it goes.
class TestGame : public QKD_Game {
public:
    /// passLength: see SteppedClock; nothing for passes of real time.
    explicit TestGame(std::optional<double> passLength = 1.0 / 60.0, const GameOptions& given = {})
        : QKD_Game(given), passSeconds(passLength)
    {
    }

    /// Seen and heard by way of another presentation.
    TestGame(double passLength, std::unique_ptr<IPresentation> shown, const GameOptions& told = {})
        : QKD_Game(std::move(shown), told), passSeconds(passLength)
    {
    }

    /// With things from outside of one's own.
    TestGame(double passLength, const GameOptions& given, Outside& around)
        : QKD_Game(given, around), passSeconds(passLength)
    {
    }

    virtual ~TestGame();

    /// Open the window, load everything and build the world. Return false when there is no display.
    [[nodiscard]] bool start();

    /// Make passes without drawing.
    void play(int passes = 1);

    /// Draw the last pass, once more maybe, and return the window's picture.
    Picture draw();

    Renderer& getRenderer();
    ScriptedKeyboard& getKeys() { return *keys; } ///< from start() on
    SteppedClock& getClock() { return *clock; }   ///< from start() on, unless in real time
    std::string getStateName() const;             ///< of the current state

private:
    std::optional<double> passSeconds;
    std::optional<ScriptedKeyboard> keys; // both once the window no longer puts its own in place
    std::optional<SteppedClock> clock;
};
