#pragma once

#include "app/QKD_Game.h"
#include "replay/ReplayOptions.h"
#include "replay/ReplayPresentation.h"
#include "replay/ReplayedPlay.h"
#include "replay/Source.h"
#include "replay/ViewerFlight.h"
#include "replay/ViewerKeys.h"

#include <chrono>
#include <filesystem>
#include <optional>

/// A recording in the window, with the game's own text, sounds and pictures, a bar, and keys to go to and fro in it.
/// Its passes are those of the recording, however fast they are shown.
class ReplayGame : public QKD_Game {
public:
    /// All borrowed; the source is open. `shown` is what is given away with it.
    ReplayGame(Source& source, ReplayedPlay& play, std::unique_ptr<IPresentation> ownPresentation,
        ReplayPresentation& shown, const GameOptions& viewer);

    /// Show it until the viewer leaves. Return false when no window could be opened.
    [[nodiscard]] bool show(int timesAsFast);

    /// Write a picture of each drawn pass, "000001.png" being the first pass's. Return false, with a log line, when
    /// that cannot be done.
    [[nodiscard]] bool writePictures(const std::filesystem::path& folder);

protected:
    void init() override;

private:
    using Clock = std::chrono::steady_clock;

    void frame();
    void obey(ViewerKeys::Wish wish);
    void jumpTo(int milliseconds);
    void jumpToMark();
    void startOver();
    void advance(double milliseconds);
    bool isDue() const;
    bool playPass();
    void land();
    void draw(float seconds);
    void addBar();

    Source& source;
    ReplayPresentation& shown;
    Renderer& view;
    ViewerKeys keys;
    std::optional<ViewerFlight> flight; // over this world: made anew with it

    Clock::time_point lastFrame;
    int speed = 1;
    double due = 0;            // milliseconds of the recording that should have been played
    std::optional<int> target; // milliseconds to jump to
    bool paused = false;
    bool left = false;       // by the viewer
    bool isComputed = false; // the last pass, and not one that took too long
    bool isDrawn = true;     // the last pass
    std::size_t ownText = 0; // vertices of the text that the pass itself wrote
};

/// Show an opened recording in the window, or write pictures of it. Return the program's exit status.
int tellInWindow(Source& source, const GameOptions& viewer, const ReplayOptions& options);
