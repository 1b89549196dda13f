#pragma once

class GameStateManager;
class Renderer;
struct GameOptions;

/// Holds the renderer and the state manager. One for the process: created on first use, never destroyed.
class Core {
public:
    static Core* getInstance();

    /// Import the game's meshes, then open the window. Return false when no window can be had; the log says why.
    [[nodiscard]] bool init(const GameOptions& options);

    Renderer* getRenderer() const { return renderer; }
    GameStateManager* getStateManager() const { return stateManager; }

private:
    Core();

    GameStateManager* stateManager;
    Renderer* renderer;
};
