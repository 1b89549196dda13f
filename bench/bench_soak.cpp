// Whether the game holds out: the whole program with its window, six people who never let go of the throttle and the
// trigger, and ten computer players, in real time. Run by hand, on a (virtual) display:
//     xvfb-run -a -s "-screen 0 1280x1024x24" build/release/bench_soak [MINUTES]
// MINUTES: 10 unless given.
//
// One line a minute, for scripts, and one at the end with the growth since the first minute: `minute 3 frames 2101
// shots 310 deaths 40 rss_kib 263456`. Frames, shots and deaths count from the start. Memory is what stays resident
// when the heap has given back whatever is free. What grows by design is the scene nodes of spent balls, which are
// detached and never freed: some 300 bytes a shot.

#include "BenchGame.h"
#include "MatchStatistics.h"
#include "QuietLog.h"
#include "ResidentMemory.h"

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kDefaultMinutes = 10;
constexpr int kHumans = 6;
constexpr int kParticipants = 16;

} // namespace

int main(int argc, char** argv)
{
    const int minutes = argc > 1 ? std::max(1, std::atoi(argv[1])) : kDefaultMinutes;
    muteLog();

    BenchGame game(std::nullopt);
    if (!game.start()) return noDisplay();
    game.startMatch(kHumans, kParticipants);

    MatchStatistics statistics(game.getMatch());
    int frames = 0;
    long firstMinute = 0, rss = 0;
    const auto start = std::chrono::steady_clock::now();
    for (int minute = 1; minute <= minutes; ++minute) {
        while (std::chrono::steady_clock::now() < start + std::chrono::minutes(minute)) {
            game.pass();
            statistics.observe();
            ++frames;
        }
        malloc_trim(0);
        rss = residentKib();
        if (minute == 1) firstMinute = rss;
        std::printf("minute %d frames %d shots %d deaths %d rss_kib %ld\n", minute, frames, statistics.getShots(),
            statistics.getDeaths(), rss);
        std::fflush(stdout);
    }
    std::printf("minutes %d shots %d rss_growth_kib %ld\n", minutes, statistics.getShots(), rss - firstMinute);
    return EXIT_SUCCESS;
}
