// Whether the game holds out: the whole program with its window, six people who never let go of the throttle and the trigger, and ten
// computer players, in real time. Run by hand, on a (virtual) display:
//     xvfb-run -a -s "-screen 0 1280x1024x24" build/release/bench_soak [MINUTES]
// MINUTES: 10 unless given.
//
// One line a minute, for scripts, and one at the end with the growth of the heap since the first minute:
// `minute 3 frames 2101 shots 310 deaths 40 heap_kib 190123 rss_kib 301234`. Frames, shots and deaths count from the start. What grows by
// design is the scene nodes of spent balls, which are detached and never freed: some 300 bytes a shot. Resident memory keeps what the
// busiest frame so far has taken, which a software driver needs much for.

#include "BenchGame.h"
#include "QuietLog.h"
#include "ResidentMemory.h"
#include "app/base/FrameTimer.h"
#include "players/Ball.h"
#include "players/Player.h"
#include "render/Renderer.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kDefaultMinutes = 10;
constexpr int kHumans = 6;
constexpr int kParticipants = 16;

struct Counts {
    int frames = 0, shots = 0;

    /// After each pass.
    void observe(const MatchRules& match)
    {
        ++frames;
        for (const auto& ball : match.getBalls()) shots += ball->getAge() == 0; // fired in this very pass
    }
};

int deathsOf(const MatchRules& match)
{
    int deaths = 0;
    for (const Actor* actor : match.getActors()) deaths += static_cast<const Player*>(actor)->getDeaths();
    return deaths;
}

} // namespace

int main(int argc, char** argv)
{
    const int minutes = argc > 1 ? std::max(1, std::atoi(argv[1])) : kDefaultMinutes;
    muteLog();

    BenchGame game;
    if (!game.start()) return noDisplay();
    FrameTimer::getInstance()->setClock(nullptr);
    game.startMatch(kHumans, kParticipants);

    Counts counts;
    long firstMinute = 0, heap = 0;
    const auto start = std::chrono::steady_clock::now();
    for (int minute = 1; minute <= minutes; ++minute) {
        while (std::chrono::steady_clock::now() < start + std::chrono::minutes(minute)) {
            game.runPass();
            counts.observe(game);
        }
        heap = heapKib();
        if (minute == 1) firstMinute = heap;
        std::printf("minute %d frames %d shots %d deaths %d heap_kib %ld rss_kib %ld\n", minute, counts.frames, counts.shots,
            deathsOf(game), heap, residentKib());
        std::fflush(stdout);
    }
    std::printf("minutes %d shots %d heap_growth_kib %ld\n", minutes, counts.shots, heap - firstMinute);
    game.getRenderer().terminate();
    return EXIT_SUCCESS;
}
