#include "base/SteppedClock.h"

#include <gtest/gtest.h>

namespace {

TEST(FrameTimerTest, LetsPassesLastTheirPeriodAndMeasuresThemInWholeMilliseconds)
{
    const struct {
        const char* what;
        double begin, end; // seconds on the clock, before the timer sleeps
        int milliseconds;  // what the timer makes of it
    } rows[] = {
        {"a short pass sleeps for what is left of 1/120 s", 10.0005, 10.0035, 8},
        {"both ends truncated, not rounded, and no sleep", 20.0009, 20.0509, 50},
        {"the fraction of a millisecond carries over", 30.0009, 30.0511, 51},
    };
    SteppedClock clock;
    FrameTimer& timer = *FrameTimer::getInstance();
    for (const auto& [what, begin, end, milliseconds] : rows) {
        for (const double moment : {begin, end}) {
            clock.sleep(moment - clock.now());
            timer.tick();
        }
        EXPECT_EQ(timer.getDelta(), static_cast<float>(milliseconds / 1000.0)) << what;
        EXPECT_EQ(timer.getTimeMs(), static_cast<int>(begin * 1000) + milliseconds) << what;
    }
}

} // namespace
