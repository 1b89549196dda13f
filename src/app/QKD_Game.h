#pragma once

#include "app/FunctionKeys.h"
#include "app/Game.h"
#include "app/Outside.h"
#include "app/Scenery.h"
#include "app/Screenshot.h"
#include "audio/SoundData.h"
#include "base/ReadAhead.h"
#include "gpu/Texture.h"
#include "match/MatchWorld.h"

#include <functional>
#include <memory>

class DebugGamestate;
class PlayGamestate;
class RegisterPlayersGamestate;
class Renderer;

/// The game itself: has the match with its world, the scenery and the states, and does what every frame needs besides
/// the current state's work: physics, sounds, function keys, the ranking in the log.
class QKD_Game : public Game {
public:
    /// Seen and heard by way of the renderer and the audio system. outside is borrowed.
    explicit QKD_Game(const GameOptions& options = {}, Outside& outside = plainOutside());

    /// Seen and heard by way of another presentation.
    explicit QKD_Game(std::unique_ptr<IPresentation> presentation, const GameOptions& options = {},
        Outside& outside = plainOutside());

    ~QKD_Game();

    // From init() on.
    Match& getMatch() { return world->getMatch(); }
    SceneGraph& getScene() { return world->getScene(); }
    const Terrain& getGround() { return world->getGround(); }

    Outside& getOutside() const { return outside; }

    Viewport::Rect getWindowRect() const; ///< the whole window, pixels

protected:
    void readAhead() override;
    void init() override;
    void loadResources() override;
    void beginPass() override { outside.passBegins(*this); }
    void update() override;
    void cleanup() override {}

    /// Take down the match with its world, the states and what is seen of them, and build them anew, as after start().
    /// `between` is called when nothing of the old is left that the presentation shows.
    void restart(const std::function<void()>& between);

private:
    // The steps of init(), in order.
    void setUpText();
    void buildWorld();
    void createWorld();
    void createStates();
    void createLightNode();
    void startSound();
    void bindFunctionKeys();
    void admit();

    void loadShaders();
    void loadTextures();
    void showHelp();
    void logRanking();

    Outside& outside;
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
