// How long players wait: from the start of the program to its first picture, and to the first picture of a match that
// two of them join at once. Starts the built program on a virtual display, presses real keys and looks at the screen;
// the files are in the page cache.
//
// usage: bench_startup [RUNS]      default 9; prints every run and the medians, in milliseconds
#include "Percentile.h"
#include "testing/ChildProcess.h"
#include "testing/TemporaryFolder.h"
#include "testing/VirtualDisplay.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr int kDefaultRuns = 9;
// One row of pixels across the landscape: looking at it costs the game next to nothing.
constexpr ScreenArea kRow{0, 500, 1024, 1};
constexpr double kDetail = 0.05;    // share of the row that a blank window does not have
constexpr double kOtherScene = 0.3; // share of the row that changes when the overview gives way to the match

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// One start of the game and the player at its keyboard.
class Run {
public:
    Run(VirtualDisplay& virtualDisplay, const fs::path& folder)
        : display(virtualDisplay), start(Clock::now()),
          game({{QUACKDASH_PROGRAM}, folder / "game.txt", {{"DISPLAY", display.getName()}}, folder})
    {
    }

    double untilFirstPicture()
    {
        game.waitFor("a window", [this] { return display.findWindow("Quackdash"); });
        const auto hasDetail = [this] {
            const Picture row = display.look(kRow);
            Picture plain = row;
            for (std::size_t i = 3; i < plain.pixels.size(); ++i) plain.pixels[i] = plain.pixels[i % 3];
            return changedShare(plain, row) > kDetail;
        };
        game.waitFor("a picture", hasDetail);
        return millisecondsSince(start);
    }

    double untilMatch()
    {
        const Picture overview = display.look(kRow);
        holdUntil("k", "Player 0, Pfeil");
        holdUntil("1", "Player 1, WASD");
        holdUntil("Return", "Enter PlayGamestate");
        game.waitFor("a picture of the match",
            [&] { return changedShare(overview, display.look(kRow)) > kOtherScene; });
        return millisecondsSince(start);
    }

    void quit()
    {
        display.press({"Escape"});
        const int status = game.waitForExit();
        display.release({"Escape"});
        if (status != 0) throw std::runtime_error("ended with status " + std::to_string(status));
    }

private:
    void holdUntil(const std::string& key, const std::string& text)
    {
        display.press({key});
        game.waitForOutput(text);
        display.release({key});
    }

    VirtualDisplay& display;
    const Clock::time_point start;
    ChildProcess game;
};

void measure(int runs, const fs::path& folder)
{
    VirtualDisplay display;
    std::vector<double> firstPictures, matches;
    for (int number = 0; number <= runs; ++number) {
        Run run(display, folder);
        const double firstPicture = run.untilFirstPicture(), match = run.untilMatch();
        run.quit();
        if (number == 0) continue; // it warmed the caches
        std::printf("first picture %5.0f ms   match %5.0f ms\n", firstPicture, match);
        firstPictures.push_back(firstPicture);
        matches.push_back(match);
    }
    std::printf("median of %d: first picture %.0f ms, match %.0f ms\n", runs, percentile(firstPictures, 0.5),
        percentile(matches, 0.5));
}

} // namespace

int main(int argc, char** argv)
{
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : kDefaultRuns;
    try {
        const TemporaryFolder folder;
        measure(runs, folder.path());
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
