// What a frame costs: the real renderer over the real world, in a match with smoke, hats and balls in flight. Run by
// hand, on the (virtual) display that is to be measured:
//     xvfb-run -a -s "-screen 0 1280x1024x24" build/release/bench_frame [FRAMES [CARS [VIEWS [WIDTH HEIGHT]]]]
// FRAMES: of each measurement, 100 unless given. CARS: participants, 16 unless given; at least one for each viewport
// takes part. VIEWS: that many viewports (1 to 6) only; 1, 2, 4 and 6 unless given, or 0. WIDTH and HEIGHT: of the
// window, 1024 and 768 unless given; the screen must hold it.
//
// For each number of viewports it prints a table of the steps of a frame (medians of wall and processor time; each step
// ended by a GL finish) and then three lines for scripts.
//
// `views 2 draws 205 lookups 566 own_ms 0.45 own_cpu_ms 0.31`: medians of what a frame hands to the driver, draw calls
// and look-ups of uniforms, and of what our own code takes: own_ms by the wall clock, the wait for the physics thread
// included, and own_cpu_ms of it by the main thread's processor time. Both are those of whole passes without the driver
// (see WithoutDriver), each after one with it, which leaves the caches as a frame of the game finds them. Within a
// frame the driver takes the caches from our code again and again: there it costs up to a third more, says a profiler.
//
// `views 2 frame_ms 43.1 p95_ms 50.2 rss_growth_kib 120`: frames measured as a whole, without finishes between the
// steps. rss_growth_kib: of resident memory from the first of all frames to the last that the driver draws: shots leave
// a scene node of some 300 bytes each.
//
// `views 2 rss_mib 320`: resident memory at the end.
//
// On a busy machine the processor time is the steadier figure: a software driver's threads count in it.

#include "BenchGame.h"
#include "GlCounters.h"
#include "Percentile.h"
#include "QuietLog.h"
#include "ResidentMemory.h"
#include "render/FrameProbe.h"
#include "render/Renderer.h"
#include "testing/OwnProcess.h"

#include <GL/glew.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>
#include <string>
#include <vector>

namespace {

/// A moment, by the wall clock and by the processor time of the whole process; milliseconds.
struct Moment {
    double wall, processor;

    static Moment now()
    {
        const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now().time_since_epoch();
        return {wall.count(), 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC};
    }
};

constexpr int kWarmUpFrames = 150; // long enough for the cars to have landed and the first shots to have hit
constexpr int kDefaultFrames = 100;
constexpr int kDefaultCars = 16;

/// Finishes the GL's work after each step and keeps the time that each took.
class StepTimes : public IFrameProbe {
public:
    void begin()
    {
        glFinish();
        last = Moment::now();
    }

    void stepDone(const char* step) override
    {
        glFinish();
        const Moment now = Moment::now();
        wall[step].push_back(now.wall - last.wall);
        processor[step].push_back(now.processor - last.processor);
        last = Moment::now();
    }

    void print() const
    {
        for (const char* step :
            {"scene update", "shadow pass", "model passes", "text", "Blur", "CelPostProc", "swap"}) {
            std::printf("  %-14s %7.2f ms, processor %7.2f ms\n", step, percentile(wall.at(step), 0.5),
                percentile(processor.at(step), 0.5));
        }
    }

private:
    Moment last{};
    std::map<std::string, std::vector<double>> wall, processor;
};

/// Processor time of the calling thread, milliseconds.
double threadMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

/// What frames hand to the driver, frame by frame.
class Submissions {
public:
    Submissions() { countGlCalls(); }

    void begin() { before = glCounts(); }

    void end()
    {
        const GlCounts now = glCounts();
        draws.push_back(static_cast<double>(now.draws - before.draws));
        lookUps.push_back(static_cast<double>(now.lookUps - before.lookUps));
    }

    double medianDraws() const { return percentile(draws, 0.5); }
    double medianLookUps() const { return percentile(lookUps, 0.5); }

private:
    GlCounts before;
    std::vector<double> draws, lookUps;
};

/// Medians of a pass without the driver, milliseconds: by the wall clock and by the main thread's processor time.
struct OwnTime {
    double wall, processor;

    static OwnTime measure(Game& game, int frames)
    {
        std::vector<double> walls, processors;
        for (int i = 0; i < frames; ++i) {
            game.pass();
            glFinish();
            const WithoutDriver withoutDriver;
            const double threadStart = threadMilliseconds(), wallStart = Moment::now().wall;
            game.pass();
            walls.push_back(Moment::now().wall - wallStart);
            processors.push_back(threadMilliseconds() - threadStart);
        }
        return {percentile(walls, 0.5), percentile(processors, 0.5)};
    }
};

/// Measure, in a process of its own: participants cannot leave a match. Return the exit status.
int measure(int views, int frames, int cars, const GameOptions& options)
{
    muteLog();
    BenchGame game(1.0 / 60.0, options);
    if (!game.start()) return noDisplay();
    game.startMatch(views, std::max(cars, views));
    for (int i = 0; i < kWarmUpFrames; ++i) game.pass();

    std::vector<double> whole, processor;
    const long memoryBefore = residentKib();
    for (int i = 0; i < frames; ++i) {
        glFinish();
        const Moment start = Moment::now();
        game.pass();
        glFinish();
        const Moment end = Moment::now();
        whole.push_back(end.wall - start.wall);
        processor.push_back(end.processor - start.processor);
    }

    StepTimes steps;
    Submissions submissions;
    game.getRenderer().setFrameProbe(&steps);
    for (int i = 0; i < frames; ++i) {
        game.updatePass();
        steps.begin();
        submissions.begin();
        game.drawPass();
        submissions.end();
    }
    game.getRenderer().setFrameProbe(nullptr);
    const long growth = residentKib() - memoryBefore;
    const OwnTime own = OwnTime::measure(game, frames);

    std::printf("%d viewport%s, %d cars, %zu balls in flight, %d frames\n", views, views == 1 ? "" : "s",
        game.getMatch().getActorCount(), game.getMatch().getBalls().size(), frames);
    steps.print();
    std::printf("  %-14s %7.2f ms, processor %7.2f ms\n", "whole frame", percentile(whole, 0.5),
        percentile(processor, 0.5));
    std::printf("views %d draws %.0f lookups %.0f own_ms %.2f own_cpu_ms %.2f\n", views, submissions.medianDraws(),
        submissions.medianLookUps(), own.wall, own.processor);
    std::printf("views %d frame_ms %.1f p95_ms %.1f rss_growth_kib %ld\n", views, percentile(whole, 0.5),
        percentile(whole, 0.95), growth);
    std::printf("views %d rss_mib %.0f\n", views, static_cast<double>(residentKib()) / 1024);
    std::fflush(stdout);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const int frames = argc > 1 ? std::max(1, std::atoi(argv[1])) : kDefaultFrames;
    const int cars = argc > 2 ? std::clamp(std::atoi(argv[2]), 0, 16) : kDefaultCars;
    std::vector<int> viewCounts{1, 2, 4, 6};
    if (argc > 3 && std::atoi(argv[3]) > 0) viewCounts = {std::min(std::atoi(argv[3]), 6)};
    GameOptions options;
    if (argc > 5) options.window.size = {std::atoi(argv[4]), std::atoi(argv[5])};
    for (const int views : viewCounts) {
        if (inOwnProcess([&] { return measure(views, frames, cars, options); }) != 0) return EXIT_FAILURE;
    }
    return 0;
}
