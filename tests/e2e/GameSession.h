#pragma once

#include "testing/ChildProcess.h"
#include "testing/DataScratch.h"
#include "testing/VirtualDisplay.h"

#include <memory>
#include <string>
#include <vector>

/// One run of the built program on a virtual display of its own, over a scratch copy of the data folder, which is also
/// the test's working directory: spoil files there before start().
class GameSession {
public:
    GameSession();

    /// Starts the program and waits until the registration screen is up. False when that takes too long or the program
    /// ends.
    [[nodiscard]] bool start();

    /// Starts it without waiting. environment: VARIABLE=value each.
    void launch(const std::vector<std::string>& environment = {}, bool withDisplay = true);

    /// Holds the key for as long as a slow frame may take, then lets go for as long.
    void tap(const std::string& key);

    /// Both keyboard halves join and the arrow half starts the match.
    [[nodiscard]] bool startMatch();

    /// Waits until the program has printed that text so many times.
    [[nodiscard]] bool waitForLog(const std::string& text, int times = 1, double seconds = 30);

    int countInLog(const std::string& text) const;
    std::string log() const { return process->output(); }

    /// The lines of the log that report something bad; empty for a run without a fault.
    std::string complaints() const;

    /// Waits until the picture in the region differs from `before` in more than that share of its pixels.
    [[nodiscard]] bool waitForChange(const Picture& before, const ScreenArea& region, double share,
        double seconds = 20);

    /// Presses Escape and returns the exit status; -1 when the program does not end.
    int quit();

    int waitForExit(); ///< -1 when the program does not end

    VirtualDisplay& screen() { return display; }

private:
    DataScratch scratch;
    VirtualDisplay display;
    std::unique_ptr<ChildProcess> process;
};
