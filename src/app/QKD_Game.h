#pragma once

#include "app/FunctionKeys.h"
#include "app/Game.h"
#include "app/Scenery.h"
#include "app/Screenshot.h"
#include "audio/SoundData.h"
#include "base/ReadAhead.h"
#include "gpu/Texture.h"
#include "match/MatchWorld.h"

#include <memory>

class DebugGamestate;
class PlayGamestate;
class RegisterPlayersGamestate;
class Renderer;

/// The game itself: has the match with its world, the scenery and the states, and does what every frame needs besides
/// the current state's work: physics, sounds, function keys, the ranking in the log.
class QKD_Game : public Game {
public:
    /// Seen and heard by way of the renderer and the audio system.
    explicit QKD_Game(const GameOptions& options = {});

    /// Seen and heard by way of another presentation.
    explicit QKD_Game(std::unique_ptr<IPresentation> presentation, const GameOptions& options = {});

    ~QKD_Game();

    // From init() on.
    Match& getMatch() { return world->getMatch(); }
    SceneGraph& getScene() { return world->getScene(); }
    const Terrain& getGround() { return world->getGround(); }

    Viewport::Rect getWindowRect() const; ///< the whole window, pixels

protected:
    void readAhead() override;
    void init() override;
    void loadResources() override;
    void update() override;
    void cleanup() override {}

private:
    // The steps of init(), in order.
    void createWorld();
    void setUpText();
    void createStates();
    void createLightNode();
    void startSound();
    void bindFunctionKeys();

    void loadShaders();
    void loadTextures();
    void showHelp();
    void logRanking();

    Renderer& renderer;
    FunctionKeys functionKeys;
    Screenshot screenshot{renderer};
    std::unique_ptr<IPresentation> presentation;
    std::unique_ptr<MatchWorld> world;
    std::unique_ptr<Scenery> scenery;
    std::unique_ptr<RegisterPlayersGamestate> registerState;
    std::unique_ptr<PlayGamestate> playState;
    std::unique_ptr<DebugGamestate> debugState;
    ReadAhead<TextureImage> pictures{TextureImage::read};
    ReadAhead<DecodedSound> sounds{SoundData::decode};
    double lastRankingLog = 0; // milliseconds of the frame timer
};
