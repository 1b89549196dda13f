// What the rules, the input and the physics of a match cost without drawing, as fast as they go, on the real ground:
// computer players only, two simulated minutes of passes of 1/120 s on a stepped clock. Run by hand:
//     build/release/bench_match [PASSES [PARTICIPANTS]]
// PASSES: of each match, 7200 unless given; 216000 make a soak of thirty simulated minutes. PARTICIPANTS: that many
// only; 2, 4, 8 and 16 unless given.
//
// One line a number of participants, for scripts, and one of a bare reference: the same cars, driven round in circles
// by the physics library alone with as many balls in flight as the match had on average.
//
// rss_growth_kib: of resident memory after the first ten seconds. What grows by design is the scene nodes of spent
// balls, which are detached and never freed: some 300 bytes a shot, 7.5 MiB in half an hour of sixteen.

#include "MatchStatistics.h"
#include "Percentile.h"
#include "QuietLog.h"
#include "ResidentMemory.h"
#include "physics/DrivingControls.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "physics/VehicleHandle.h"
#include "testing/HeadlessMatch.h"
#include "testing/OwnProcess.h"

#include <PxPhysicsAPI.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kDefaultPasses = 7200;
constexpr int kMeasuredFrom = 1200; // passes: memory is looked at after the first ten seconds
const physx::PxVec3 kVehicleGravity(0, -9.81f, 0);

template <class Work>
double microseconds(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

/// The physics library with nothing of the game around it. balls: in flight all the time, thrown again every five
/// seconds. Return the exit status.
int runReference(int participants, int passes, int balls)
{
    HeadlessMatch match;
    PhysxManager& world = *PhysxManager::instance();
    std::vector<VehicleHandle*> cars;
    cars.reserve(static_cast<std::size_t>(participants));
    for (int i = 0; i < participants; ++i) {
        cars.push_back(world.createVehicle());
        cars.back()->placeAt(glm::vec3(-90 + 12 * i, 50, (i % 4) * 40 - 60));
    }
    std::vector<PhysicNode*> flying;
    flying.reserve(static_cast<std::size_t>(balls));
    for (int i = 0; i < balls; ++i) flying.push_back(world.createBall());

    std::vector<DrivingControls> controls(cars.size());
    std::vector<double> times;
    for (int pass = 0; pass < passes; ++pass) {
        for (std::size_t i = 0; i < flying.size(); ++i) {
            if ((pass + 37 * static_cast<int>(i)) % 600 != 0) continue;
            flying[i]->setPosition(static_cast<float>(i % 10) * 15 - 70, 48, 0);
            flying[i]->setLinearVelocity(glm::vec3(0, 0, 150));
        }
        for (std::size_t i = 0; i < cars.size(); ++i) controls[i].apply({1.0f, 0.0f, 0.5f, false}, *cars[i]);
        times.push_back(microseconds([&] {
            world.updateVehicles(kGameTimeScale / 120, kVehicleGravity);
            world.step(kGameTimeScale / 120);
        }));
    }
    std::printf("reference participants %d balls %d pass_us_median %.0f\n", participants, balls,
        percentile(times, 0.5));
    std::fflush(stdout);
    return EXIT_SUCCESS;
}

/// Return the balls in flight on average.
int runMatch(int participants, int passes)
{
    HeadlessMatch match;
    for (int i = 0; i < participants; ++i) match.addComputerPlayer();

    MatchStatistics statistics(match.rules);
    std::vector<double> times(static_cast<std::size_t>(passes)); // written to once, so that it does not count as growth
    long memoryBefore = 0, ballPasses = 0;
    for (int pass = 0; pass < passes; ++pass) {
        if (pass == std::min(kMeasuredFrom, passes - 1)) memoryBefore = residentKib();
        times[static_cast<std::size_t>(pass)] = microseconds([&match] { match.pass(); });
        statistics.observe();
        ballPasses += static_cast<long>(match.rules.getBalls().size());
    }
    const long growth = residentKib() - memoryBefore;

    double total = 0;
    for (const double time : times) total += time;
    std::printf("participants %d passes_per_s %.0f pass_us_median %.0f pass_us_p99 %.0f ", participants,
        passes / (total * 1e-6), percentile(times, 0.5), percentile(times, 0.99));
    statistics.print();
    std::printf(" rss_growth_kib %ld\n", growth);
    std::fflush(stdout);
    return static_cast<int>(ballPasses / passes);
}

} // namespace

int main(int argc, char** argv)
{
    muteLog();
    const int passes = argc > 1 ? std::max(2, std::atoi(argv[1])) : kDefaultPasses;
    std::vector<int> counts{2, 4, 8, 16};
    if (argc > 2) counts = {std::clamp(std::atoi(argv[2]), 1, 16)};
    for (const int participants : counts) {
        const std::optional<int> balls = inOwnProcess([&] { return runMatch(participants, passes); });
        if (!balls || inOwnProcess([&] { return runReference(participants, passes, *balls); }) != EXIT_SUCCESS)
            return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
