#pragma once

#include "app/CarStage.h"
#include "app/FunctionKeys.h"
#include "app/Game.h"
#include "match/MatchRules.h"

#include <memory>
#include <vector>

class DebugGamestate;
class PartyhatModel;
class PlayGamestate;
class RegisterPlayersGamestate;
class Renderer;
class TerrainModel;

/// The game itself: builds the world, owns the states and does what every frame needs besides the current state's work:
/// physics, function keys, the ranking in the log. The rules are in MatchRules.
class QKD_Game : public Game, public MatchRules {
public:
    QKD_Game();
    ~QKD_Game() override;

    Viewport::Rect getWindowRect() const; ///< the whole window, pixels

protected:
    void init() override;
    void loadResources() override;
    void update() override;
    void cleanup() override {}

private:
    struct Sky;

    // The steps of init(), in order.
    void setUpText();
    void createScene();
    void createSkybox();
    void createStates();
    void createLightNode();
    void createTerrain();
    void startSound();
    void createHats();
    void bindFunctionKeys();

    void loadShaders();
    void loadTextures();
    void showHelp();
    void logRanking();

    Renderer& renderer;
    CarStage stage;
    FunctionKeys functionKeys;
    std::unique_ptr<Sky> sky;
    std::unique_ptr<TerrainModel> terrainModel;
    std::vector<std::unique_ptr<PartyhatModel>> hatModels; // gold, silver, bronze
    std::unique_ptr<RegisterPlayersGamestate> registerState;
    std::unique_ptr<PlayGamestate> playState;
    std::unique_ptr<DebugGamestate> debugState;
    double lastRankingLog = 0; // milliseconds of the frame timer
};
