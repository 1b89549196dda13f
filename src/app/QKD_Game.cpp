#include "app/QKD_Game.h"

#include "app/AssetManifest.h"
#include "app/Core.h"
#include "app/DebugGamestate.h"
#include "app/GameStateManager.h"
#include "app/PlayGamestate.h"
#include "app/PlayerLabels.h"
#include "app/Presentation.h"
#include "app/RegisterPlayersGamestate.h"
#include "assets/Library.h"
#include "audio/AudioSystem.h"
#include "base/FrameTimer.h"
#include "base/Logger.h"
#include "physics/PhysxManager.h"
#include "platform/KeyWords.h"
#include "players/Player.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"
#include "scene/Transforms.h"

#include <tuple>

namespace {

constexpr double kRankingLogInterval = 3000; // milliseconds
constexpr float kMusicVolume = 1.0f;

std::vector<std::string> filesOf(std::span<const Asset> assets)
{
    std::vector<std::string> files;
    for (const Asset& asset : assets) files.emplace_back(asset.file);
    return files;
}

} // namespace

QKD_Game::QKD_Game(const GameOptions& ownOptions, Outside& ownOutside)
    : QKD_Game(std::make_unique<Presentation>(*Core::getInstance()->getRenderer(), ownOptions.text), ownOptions,
          ownOutside)
{
}

QKD_Game::QKD_Game(std::unique_ptr<IPresentation> ownPresentation, const GameOptions& ownOptions, Outside& ownOutside)
    : Game(ownOptions), outside(ownOutside), renderer(*getCore()->getRenderer()),
      presentation(std::move(ownPresentation))
{
}

QKD_Game::~QKD_Game() = default;

Viewport::Rect QKD_Game::getWindowRect() const
{
    return {0, 0, renderer.getWidth(), renderer.getHeight()};
}

void QKD_Game::readAhead()
{
    pictures.start(filesOf(textureAssets()));
    sounds.start(filesOf(soundAssets()));
}

void QKD_Game::loadResources()
{
    loadShaders();
    loadTextures();
}

void QKD_Game::loadShaders()
{
    for (const Asset& shader : shaderAssets()) Library::getInstance()->loadShader(shader.name, shader.file);
}

void QKD_Game::loadTextures()
{
    for (const Asset& texture : textureAssets())
        Library::getInstance()->loadTexture(texture.name, texture.file, pictures.take(texture.file));
}

void QKD_Game::init()
{
    chooseLanguage(options.text.language);
    setUpText();
    buildWorld();
    startSound(); // last: it waits for the music
    bindFunctionKeys();
    admit();
}

void QKD_Game::buildWorld()
{
    createWorld();
    scenery->addSky();
    createStates();
    createLightNode();
    scenery->addGround(world->getGround());
    scenery->addHats(getMatch().getHats());
}

void QKD_Game::admit()
{
    lastRankingLog = FrameTimer::getInstance()->getTimeMs();
    registerState->admit(options.start);
}

void QKD_Game::restart(const std::function<void()>& between)
{
    getScene().acceptRelease(renderer.getModelRenderer());
    getScene().acceptRelease(renderer.getShadowRenderer());
    // The current one is left when its successor is entered.
    const auto oldStates = std::make_tuple(std::move(registerState), std::move(playState), std::move(debugState));
    scenery.reset();
    world.reset();
    delete PhysxManager::instance();
    between();
    renderer.resetSwitches();
    functionKeys = {};
    buildWorld();
    bindFunctionKeys();
    admit();
}

void QKD_Game::createWorld()
{
    world = std::make_unique<MatchWorld>(*presentation, options.colours.people);
    scenery = std::make_unique<Scenery>(getScene());
    renderer.setSceneGraph(&getScene());
}

void QKD_Game::setUpText()
{
    TextRenderer* text = renderer.getTextRenderer();
    text->setShader(Library::getInstance()->getShaderprogram("TextShader"));
    text->setFont(Library::getInstance()->getTexture("Font"));
    text->setScale(options.text.scale / 100.0); // percent
    renderer.setCulledText(makeCulledText(renderer, options.text));
}

void QKD_Game::createStates()
{
    registerState = std::make_unique<RegisterPlayersGamestate>("RegisterPlayersGamestate", *this, options);
    playState =
        std::make_unique<PlayGamestate>("PlayGamestate", *this, options.controls, makeScreenSaver(options.screenSaver));
    debugState = std::make_unique<DebugGamestate>("DebugGamestate", *this);

    GameStateManager* states = getCore()->getStateManager();
    states->addState(registerState.get());
    states->addState(playState.get());
    states->addState(debugState.get());
    states->changeState("RegisterPlayersGamestate");
}

void QKD_Game::createLightNode()
{
    Node* lightNode = getScene().getRoot()->createChild("lightNode");
    lightNode->transform(translation(glm::vec3(3, 10, 0)), true);
}

void QKD_Game::startSound()
{
    AudioSystem* const audio = AudioSystem::getInstance();
    audio->init({}, options.sound);
    for (const Asset& sound : soundAssets()) audio->addSound(sound.name, sound.file, sounds.take(sound.file));
    if (options.sound.muteUnfocused)
        renderer.getWindow().watchFocus([audio](bool focused) { audio->setHeard(focused); });
    presentation->playSound("musik", true, kMusicVolume);
}

void QKD_Game::bindFunctionKeys()
{
    using When = FunctionKeys::When;
    functionKeys.bind(7, When::kHeld, [this] {
        loadTextures();
        loadShaders();
    });
    functionKeys.bind(3, When::kPressed, [this] { renderer.toggleWireframe(); });
    functionKeys.bind(9, When::kPressed, [this] { renderer.toggleBlending(); });
    functionKeys.bind(4, When::kPressed, [this] { renderer.toggleMagFilter(); });
    functionKeys.bind(5, When::kPressed, [this] { renderer.cycleMinFilter(); });
    functionKeys.bind(2, When::kPressed, [this] { renderer.toggleFpsDisplay(); });
    functionKeys.bind(1, When::kHeld, [this] { showHelp(); });
    functionKeys.bindKey(keyOf(options.keys.screenshot), [this] { screenshot.takeNext(); });
    functionKeys.bindKey(keyOf(options.keys.mark), [this] { outside.mark(); });
    functionKeys.bindKey(keyOf(options.keys.fullscreen), [this] { renderer.getWindow().toggleFullscreen(); });
}

void QKD_Game::showHelp()
{
    TextRenderer* text = renderer.getTextRenderer();
    text->clear();
    getCore()->getStateManager()->getCurrentState()->drawText(text);
}

void QKD_Game::update()
{
    getMatch().stepPhysics();
    presentation->update();
    functionKeys.update();
    logRanking();
    outside.passEnds(*this);
}

void QKD_Game::logRanking()
{
    constexpr const char* kPlaceNames[Ranking::kPlaces] = {"First:  ", "Second: ", "Third:  "};

    const double now = FrameTimer::getInstance()->getTimeMs();
    if (now <= lastRankingLog + kRankingLogInterval) return;

    for (int place = 0; place < Ranking::kPlaces; ++place) {
        if (const Player* leader = getMatch().getRanking().getLeader(place))
            logLine(2) << kPlaceNames[place] << leader->getName() << std::endl;
    }
    if (getMatch().getRanking().getLeader(0)) logLine(2) << "" << std::endl;
    lastRankingLog = now;
}
