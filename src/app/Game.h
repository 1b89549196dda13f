#pragma once

class Core;
class FrameTimer;
class IGameState;

/// The main loop. A concrete game fills in the four steps; main calls run() once. Whoever wants the loop in its own hands
/// calls start(), then pass() as often as it likes, or updatePass() and drawPass() by themselves.
class Game {
public:
    Game();
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    /// Starts, runs passes until the window is closed or quit() was called, and closes the window. False when no window
    /// could be opened.
    [[nodiscard]] bool run();

    /// Opens the window, loads the resources and builds the world. False when no window could be opened.
    [[nodiscard]] bool start();

    /// One pass of the loop, its sleep included.
    void pass();

    /// The half of a pass that computes. False when the pass before took so long that this one is skipped: then nothing
    /// has happened but the tick, and there is nothing to draw.
    bool updatePass();

    /// The half that draws and presents what updatePass() has made.
    void drawPass();

    void quit() { quitting = true; } ///< the loop ends after the current pass
    bool isQuitting() const { return quitting; }

    Core* getCore() const { return core; }

protected:
    ~Game() = default;

    virtual void init() = 0;          ///< builds the world, creates the states and enters the first
    virtual void loadResources() = 0; ///< loads every shader and texture; the context is current
    virtual void update() = 0;        ///< the game's own work once a drawn frame, after the current state's
    virtual void cleanup() = 0;       ///< for a game that has something to put away; the loop never calls it

private:
    FrameTimer* timer;
    Core* core;
    IGameState* frameState = nullptr; // that began the pass: the frame is its own even if it has handed over meanwhile
    bool quitting = false;
};
