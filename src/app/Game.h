#pragma once

#include "app/GameOptions.h"

class Core;
class FrameTimer;
class IGameState;

/// The main loop. A concrete game fills in the five steps; main calls run() once. Whoever wants the loop in its own
/// hands calls start(), then pass() as often as it likes, or updatePass() and drawPass() by themselves.
class Game {
public:
    explicit Game(const GameOptions& options = {});
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    /// Start, run passes until the window is closed or quit() was called, and close the window. Return false when no
    /// window could be opened.
    [[nodiscard]] bool run();

    /// Open the window, load the resources and build the world. Return false when no window could be opened.
    [[nodiscard]] bool start();

    /// Make one pass of the loop, its sleep included.
    void pass();

    /// Do the half of a pass that computes. Return false when the pass took so long that it is skipped: then nothing
    /// has happened but the tick, and there is nothing to draw.
    bool updatePass();

    /// Do the half that draws and presents what updatePass() has made.
    void drawPass();

    void quit() { quitting = true; } ///< end the loop after the current pass
    bool isQuitting() const { return quitting; }

    Core* getCore() const { return core; }

protected:
    ~Game() = default;

    virtual void readAhead() = 0;     ///< begin to read, on threads, files that the next steps take; no context yet
    virtual void init() = 0;          ///< build the world, create the states and enter the first
    virtual void loadResources() = 0; ///< load every shader and texture; the context is current
    virtual void beginPass() = 0;     ///< the pass has its length; nobody has done anything in it yet
    virtual void update() = 0;        ///< do the game's own work once a drawn frame, after the state's
    virtual void cleanup() = 0;       ///< put something away; the loop never calls it

    const GameOptions options;

private:
    FrameTimer* timer;
    Core* core;
    IGameState* frameState = nullptr; // that began the pass: the frame is its own even if it has handed over meanwhile
    bool quitting = false;
};
