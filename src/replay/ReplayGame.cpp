#include "replay/ReplayGame.h"

#include "app/Core.h"
#include "base/Logger.h"
#include "platform/Image.h"
#include "render/FrameProbe.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"
#include "replay/Identity.h"
#include "replay/TimeBar.h"
#include "scene/SceneGraph.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <thread>

namespace fs = std::filesystem;

namespace {

constexpr int kJump = 5000, kLongJump = 30000;            // milliseconds
constexpr auto kPatience = std::chrono::milliseconds(50); // of a frame that has many passes to make up for
constexpr auto kIdle = std::chrono::milliseconds(2);      // between two looks at the keys
constexpr double kBarX = -0.97, kBarY = -0.9;             // normalised device coordinates
constexpr std::size_t kBarWidth = 31;                     // characters, from edge to edge

/// Who plays comes from the recording, how it is seen and heard from the viewer, whose keys are not the game's.
GameOptions optionsOf(const recording::Header& header, const GameOptions& viewer)
{
    GameOptions options = viewer;
    options.start = startOf(header);
    options.controls = controlsOf(header);
    options.keys = {};
    return options;
}

/// Writes a frame into a file.
class FrameWriter : public IFrameProbe {
public:
    FrameWriter(const Renderer& ownRenderer, fs::path ownFile) : renderer(ownRenderer), file(std::move(ownFile)) {}

    void stepDone(const char* step) override
    {
        if (step == std::string_view("picture")) error = writeNewPng(renderer.readPicture(), file);
    }

    /// Return whether it did, with a log line if not.
    bool hasWritten() const
    {
        if (error) logLine(0) << "Cannot write " << file.string() << ": " << error.message() << std::endl;
        return !error;
    }

private:
    const Renderer& renderer;
    const fs::path file;
    std::error_code error;
};

double millisecondsIn(std::chrono::steady_clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

} // namespace

ReplayGame::ReplayGame(Source& ownSource, ReplayedPlay& play, std::unique_ptr<IPresentation> ownPresentation,
    ReplayPresentation& ownShown, const GameOptions& viewer)
    : QKD_Game(std::move(ownPresentation), optionsOf(ownSource.getRecording().getHeader(), viewer), play),
      source(ownSource), shown(ownShown), view(*getCore()->getRenderer()), keys(view.getWindow())
{
}

void ReplayGame::init()
{
    source.begin();
    QKD_Game::init();
    flight.emplace(*this, view.getWindow());
}

bool ReplayGame::show(int timesAsFast)
{
    if (!start()) return false;
    speed = timesAsFast;
    lastFrame = Clock::now();
    while (!view.shouldClose() && !left) frame();
    view.terminate();
    return true;
}

void ReplayGame::frame()
{
    const Clock::time_point now = Clock::now();
    const double elapsed = millisecondsIn(now - std::exchange(lastFrame, now));
    const auto nextWish = [this] { return keys.next(flight->isFlying()); };
    for (ViewerKeys::Wish wish = nextWish(); wish != ViewerKeys::Wish::Nothing; wish = nextWish()) obey(wish);
    advance(elapsed);
    if (!isDrawn || flight->isFlying()) {
        draw(static_cast<float>(elapsed / 1000));
        return;
    }
    view.getWindow().poll();
    std::this_thread::sleep_for(kIdle);
}

void ReplayGame::obey(ViewerKeys::Wish wish)
{
    using Wish = ViewerKeys::Wish;
    isDrawn = false; // whatever it is, the bar shows it
    switch (wish) {
    case Wish::Nothing: break;
    case Wish::Pause: paused = !paused; break;
    case Wish::OnePass:
        paused = true;
        playPass();
        break;
    case Wish::Mark: jumpToMark(); break;
    case Wish::Back: jumpTo(source.getTime() - kJump); break;
    case Wish::Forward: jumpTo(source.getTime() + kJump); break;
    case Wish::FarBack: jumpTo(source.getTime() - kLongJump); break;
    case Wish::FarForward: jumpTo(source.getTime() + kLongJump); break;
    case Wish::Fly: flight->setFlying(true); break;
    case Wish::Land: flight->setFlying(false); break;
    case Wish::Leave: left = true; break;
    }
}

void ReplayGame::jumpTo(int milliseconds)
{
    target = std::max(milliseconds, 0);
    shown.setQuiet(true);
    if (*target < source.getTime()) startOver();
}

void ReplayGame::jumpToMark()
{
    const std::vector<int>& marks = source.getRecording().getMarks();
    const auto next = std::upper_bound(marks.begin(), marks.end(), source.getTime());
    if (next != marks.end()) jumpTo(*next);
}

/// What was is only to be had by telling everything again.
void ReplayGame::startOver()
{
    const glm::mat4 pose = flight->getPose();
    const bool flying = flight->isFlying();
    source.begin();
    restart([this] {
        flight.reset();
        shown.startOver();
    });
    flight.emplace(*this, view.getWindow());
    flight->setPose(pose);
    flight->setFlying(flying);
    playPass(); // a frame is drawn by the state that a pass began in
}

void ReplayGame::advance(double milliseconds)
{
    const Clock::time_point begin = Clock::now();
    if (!paused && !target) due += milliseconds * speed;
    while (isDue() && playPass()) {
        if (Clock::now() - begin < kPatience) continue;
        due = source.getTime(); // what this machine cannot make up for is left behind
        break;
    }
    if (target && !isDue()) land();
}

bool ReplayGame::isDue() const
{
    return target ? source.getTime() < *target : !paused && source.getTime() < due;
}

void ReplayGame::land()
{
    target.reset();
    due = source.getTime();
    shown.setQuiet(false);
}

bool ReplayGame::playPass()
{
    if (isComputed && !isDrawn) getScene().update(); // as drawing would have
    if (!source.nextPass()) {
        target.reset();
        paused = true;
        land();
        isDrawn = false;
        return false;
    }
    isComputed = updatePass();
    isDrawn = !isComputed;
    ownText = view.getTextRenderer()->getQueue().size();
    return true;
}

void ReplayGame::draw(float seconds)
{
    view.getTextRenderer()->shorten(ownText);
    addBar();
    const std::vector<Viewport*> players = view.getViewports();
    if (flight->isFlying() || players.empty()) {
        flight->update(seconds);
        view.setViewports({flight->getViewport()});
    }
    drawPass();
    view.setViewports(players);
    isDrawn = true;
}

void ReplayGame::addBar()
{
    const RecordingReader& recording = source.getRecording();
    const TimeBar bar{source.getTime(), recording.getLength(), recording.getMarks(), speed, paused};
    view.getTextRenderer()->addText(bar.text(kBarWidth), kBarX, kBarY);
}

bool ReplayGame::writePictures(const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (!start()) return false;
    bool written = true;
    while (written && !view.shouldClose() && playPass()) {
        if (!isComputed) continue;
        std::ostringstream name;
        name << std::setw(6) << std::setfill('0') << source.getPassNumber() << ".png";
        FrameWriter writer(view, folder / name.str());
        view.setFrameProbe(&writer);
        drawPass();
        view.setFrameProbe(nullptr);
        isDrawn = true;
        written = writer.hasWritten();
    }
    view.terminate();
    return written;
}

int tellInWindow(Source& source, const GameOptions& viewer, const ReplayOptions& options)
{
    auto presentation = std::make_unique<ReplayPresentation>(*Core::getInstance()->getRenderer(), viewer.text);
    ReplayPresentation& shown = *presentation;
    ReplayedPlay play(source);
    ReplayGame game(source, play, std::move(presentation), shown, viewer);
    const bool told = options.pictures.empty() ? game.show(options.speed) : game.writePictures(options.pictures);
    return told ? EXIT_SUCCESS : EXIT_FAILURE;
}
