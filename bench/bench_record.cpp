// What it costs to record a match of sixteen, six of them people whose sticks never rest: the time of a pass that the
// recorder takes, and what it writes.
//
// usage: bench_record [PASSES]      7200 unless given
//
// Prints medians and shares of the whole, and bytes for each second of passes of 1/120 s:
// `pass_us 250.1 recorder_us 1.20 percent 0.48 bytes_per_s 12000`

#include "Percentile.h"
#include "QuietLog.h"
#include "WanderingDevice.h"
#include "match/PlayerRegistration.h"
#include "replay/Identity.h"
#include "replay/Recorder.h"
#include "testing/HeadlessMatch.h"
#include "testing/TemporaryFolder.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace {

constexpr int kDefaultPasses = 7200;
constexpr int kPassesASecond = 120;

using Clock = std::chrono::steady_clock;

double microsecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::micro>(Clock::now() - begin).count();
}

InputDevices wanderingDevices()
{
    InputDevices devices;
    for (std::size_t i = 0; i < devices.size(); ++i)
        devices[i] = std::make_unique<WanderingDevice>(static_cast<unsigned>(i));
    return devices;
}

/// Record a match of so many passes, and print what that cost.
void measure(int passes)
{
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "match";
    StartOptions start;
    start.computerPlayers = PlayerRegistration::kMaxComputerPlayers;
    start.join = {
        JoinDevice::Pad1, JoinDevice::Pad2, JoinDevice::Pad3, JoinDevice::Pad4, JoinDevice::Arrows, JoinDevice::Wasd};

    std::vector<double> wholes, recorders;
    {
        HeadlessMatch match;
        Recorder recorder(file, describeThisPlay(1, start));
        PlayerRegistration registration(match.rules, recorder.wrap(wanderingDevices()));
        registration.admit(start);
        wholes.reserve(static_cast<std::size_t>(passes));
        recorders.reserve(static_cast<std::size_t>(passes));
        for (int pass = 0; pass < passes; ++pass) {
            const Clock::time_point begin = Clock::now();
            recorder.beginPass(recording::MATCH);
            const double first = microsecondsSince(begin);
            match.pass();
            const Clock::time_point end = Clock::now();
            recorder.endPass(match.rules);
            recorders.push_back(first + microsecondsSince(end));
            wholes.push_back(microsecondsSince(begin));
        }
    }
    const double whole = std::accumulate(wholes.begin(), wholes.end(), 0.0);
    const double recorder = std::accumulate(recorders.begin(), recorders.end(), 0.0);
    std::printf("pass_us %.1f recorder_us %.2f percent %.2f bytes_per_s %.0f\n", percentile(wholes, 0.5),
        percentile(recorders, 0.5), 100 * recorder / whole,
        static_cast<double>(std::filesystem::file_size(file)) * kPassesASecond / passes);
}

} // namespace

int main(int argc, char** argv)
{
    muteLog();
    try {
        measure(argc > 1 ? std::max(2, std::atoi(argv[1])) : kDefaultPasses);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
