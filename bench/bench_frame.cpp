// What a frame costs: the real renderer over the real world, with cars driving on the terrain. Run by hand, on the (virtual) display
// that is to be measured:
//     xvfb-run -a -s "-screen 0 1280x1024x24" build/release/bench_frame [frames]
//
// For each number of viewports it prints a table of the steps of a frame (medians; each step ended by a GL finish) and then one line for
// scripts, of frames measured as a whole without those finishes: `views 2 frame_ms 43.1 p95_ms 50.2`.

#include "BenchGame.h"
#include "app/base/FrameTimer.h"
#include "render/FrameProbe.h"
#include "render/Renderer.h"

#include <GL/glew.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kWarmUpFrames = 90; // long enough for the cars to have landed
constexpr int kDefaultFrames = 100;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double percentile(std::vector<double> samples, double part)
{
    std::sort(samples.begin(), samples.end());
    return samples[std::min(samples.size() - 1, static_cast<std::size_t>(part * static_cast<double>(samples.size())))];
}

/// Finishes the GL's work after each step and keeps the time that each took.
class StepTimes : public IFrameProbe {
public:
    void begin()
    {
        glFinish();
        last = Clock::now();
    }

    void stepDone(const char* step) override
    {
        glFinish();
        samples[step].push_back(millisecondsSince(last));
        last = Clock::now();
    }

    void print() const
    {
        for (const char* step : {"scene update", "shadow pass", "model passes", "text", "Blur", "CelPostProc", "swap"}) {
            std::printf("  %-14s %7.2f ms\n", step, percentile(samples.at(step), 0.5));
        }
    }

private:
    Clock::time_point last;
    std::map<std::string, std::vector<double>> samples;
};

void measure(BenchGame& game, int views, int frames)
{
    game.showPlayers(views);
    for (int i = 0; i < kWarmUpFrames; ++i) game.pass();

    std::vector<double> whole;
    for (int i = 0; i < frames; ++i) {
        glFinish();
        const Clock::time_point start = Clock::now();
        game.pass();
        glFinish();
        whole.push_back(millisecondsSince(start));
    }

    StepTimes steps;
    game.getRenderer().setFrameProbe(&steps);
    for (int i = 0; i < frames; ++i) {
        game.updateOnly();
        steps.begin();
        game.drawOnly();
    }
    game.getRenderer().setFrameProbe(nullptr);

    std::printf("%d viewport%s, %d frames\n", views, views == 1 ? "" : "s", frames);
    steps.print();
    std::printf("views %d frame_ms %.1f p95_ms %.1f\n", views, percentile(whole, 0.5), percentile(whole, 0.95));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    const int frames = argc > 1 ? std::max(1, std::atoi(argv[1])) : kDefaultFrames;
    BenchGame game;
    if (!game.start()) return 1;
    for (int views : {1, 2, 4, 6}) measure(game, views, frames);
    game.getRenderer().terminate();
    return 0;
}
