// What a player gets: frames a second of the built program, on a virtual display of its own, with one person in one
// view among nine computer players. Real keys drive the car: throttle held, steering to and fro, a shot now and then.
// Nothing in the program is changed; a preloaded library notes when each frame is presented.
//
// usage: bench_play [SECONDS]      measured, 10 unless given
//
// Prints the frames a second of each second and, for scripts, their median: `fps 52.3`. The game itself makes no more
// than 120.

#include "Percentile.h"
#include "testing/ChildProcess.h"
#include "testing/TemporaryFolder.h"
#include "testing/VirtualDisplay.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr int kDefaultSeconds = 10;
constexpr int kComputerPlayers = 9;
constexpr int kWarmUpSeconds = 5; // the cars come in from above, land and find each other

using Clock = std::chrono::steady_clock;
using Times = std::vector<Clock::time_point>;

/// The game and the player at its keyboard.
class Match {
public:
    explicit Match(const fs::path& folder)
        : swapTimes(folder / "swap-times"), game({{QUACKDASH_PROGRAM}, folder / "game.txt",
                                                {{"DISPLAY", display.getName()}, {"LD_PRELOAD", BENCH_SWAP_TIMES},
                                                    {"QUACKDASH_SWAP_TIMES", swapTimes.string()}},
                                                folder})
    {
    }

    void start()
    {
        game.waitForOutput("Enter RegisterPlayersGamestate");
        game.waitFor("a window", [this] { return display.findWindow("Quackdash"); });
        for (int i = 0; i < kComputerPlayers; ++i) tapForAFrame("space");
        holdUntil("k", "Player registered");
        holdUntil("Return", "Enter PlayGamestate");
    }

    /// Drive from now on for that long.
    void drive(std::chrono::seconds duration)
    {
        constexpr auto kKeyPause = std::chrono::milliseconds(300); // of a hand: what is held stays down that long
        const char* turns[] = {"Left", "Right"};
        display.press({"Up"});
        const auto end = Clock::now() + duration;
        for (int i = 0; Clock::now() < end; ++i) {
            const std::string turn = turns[i % 2];
            display.press({turn, "k"});
            std::this_thread::sleep_for(kKeyPause);
            display.release({turn, "k"});
            std::this_thread::sleep_for(kKeyPause);
        }
        display.release({"Up"});
    }

    void quit()
    {
        display.press({"Escape"});
        const int status = game.waitForExit();
        display.release({"Escape"});
        if (status != 0) throw std::runtime_error("ended with status " + std::to_string(status));
    }

    /// Return when the frames so far were presented.
    Times frameTimes() const
    {
        std::ifstream file(swapTimes, std::ios::binary);
        Times times;
        for (std::int64_t time = 0; file.read(reinterpret_cast<char*>(&time), sizeof time);)
            times.emplace_back(std::chrono::nanoseconds(time));
        return times;
    }

private:
    void holdUntil(const std::string& key, const std::string& text)
    {
        display.press({key});
        game.waitForOutput(text);
        display.release({key});
    }

    /// Hold a key until the game must have seen it, and leave it up as long.
    void tapForAFrame(const std::string& key)
    {
        display.press({key});
        awaitFrames();
        display.release({key});
        awaitFrames();
    }

    void awaitFrames()
    {
        constexpr int kFrames = 3; // one may be under way, and one polled before the key came
        const std::size_t enough = frameTimes().size() + kFrames;
        game.waitFor("a frame", [&] { return frameTimes().size() >= enough; });
    }

    VirtualDisplay display;
    const fs::path swapTimes;
    ChildProcess game;
};

/// Return the frames a second of each whole second from `start` on, by its first and last frame.
std::vector<double> framesPerSecond(const Times& times, Clock::time_point start, int seconds)
{
    std::vector<double> rates;
    for (int i = 0; i < seconds; ++i) {
        const auto begin = std::lower_bound(times.begin(), times.end(), start + std::chrono::seconds(i));
        const auto end = std::lower_bound(times.begin(), times.end(), start + std::chrono::seconds(i + 1));
        if (end - begin < 2) throw std::runtime_error("no two frames within a second");
        const std::chrono::duration<double> length = *(end - 1) - *begin;
        rates.push_back(static_cast<double>(end - begin - 1) / length.count());
    }
    return rates;
}

void measure(int seconds)
{
    const TemporaryFolder folder;
    Match match(folder.path());
    match.start();
    match.drive(std::chrono::seconds(kWarmUpSeconds));
    const auto start = Clock::now();
    match.drive(std::chrono::seconds(seconds));
    match.quit();

    const std::vector<double> rates = framesPerSecond(match.frameTimes(), start, seconds);
    for (const double rate : rates) std::printf("%.1f ", rate);
    std::printf("\nfps %.1f\n", percentile(rates, 0.5));
}

} // namespace

int main(int argc, char** argv)
{
    const int seconds = argc > 1 ? std::max(1, std::atoi(argv[1])) : kDefaultSeconds;
    try {
        measure(seconds);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
