#pragma once

class Core;
class FrameTimer;
class IGameState;

/// The main loop. A concrete game fills in the four steps; main calls run() once.
class Game {
public:
    Game();
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    /// Opens the window, loads the resources, builds the world and runs passes until the window is closed or quit() was
    /// called. False when no window could be opened.
    [[nodiscard]] bool run();

    void quit() { quitting = true; } ///< the loop ends after the current pass
    bool isQuitting() const { return quitting; }

    Core* getCore() const { return core; }

protected:
    ~Game() = default;

    void runPass(); ///< one pass of the loop, its sleep included

    virtual void init() = 0;          ///< builds the world, creates the states and enters the first
    virtual void loadResources() = 0; ///< loads every shader and texture; the context is current
    virtual void update() = 0;        ///< the game's own work once a drawn frame, after the current state's
    virtual void cleanup() = 0;       ///< for a game that has something to put away; the loop never calls it

private:
    FrameTimer* timer;
    Core* core;
    bool quitting = false;
};
