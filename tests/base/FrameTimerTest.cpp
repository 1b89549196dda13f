#include "testing/SteppedClock.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Pass {
    const char* what;
    double begin, end; ///< seconds on the clock, before the timer sleeps
    int milliseconds;  ///< what the timer makes of it
    bool isShorterThanOneGameSecond;
};

TEST(FrameTimerTest, PassesLastAtLeastTheirPeriodAndAreMeasuredInWholeMilliseconds)
{
    const Pass rows[] = {{"a short pass sleeps for what is left of 1/120 s", 1.0005, 1.0035, 8, true},
        {"both ends truncated, not rounded, and no sleep", 2.0009, 2.0509, 50, true},
        {"the fraction of a millisecond carries over", 2.0009, 2.0511, 51, true},
        {"a third of a second that spans 333 whole milliseconds", 3.0001, 3.0001 + 1.0 / 3, 333, true},
        {"a third of a second that spans 334 whole milliseconds", 3.0008, 3.0008 + 1.0 / 3, 334, false},
        {"a long pass", 5.0, 7.5, 2500, false}};
    FrameTimer& timer = *FrameTimer::getInstance();
    for (const Pass& row : rows) {
        SteppedClock clock;
        const double start =
            std::ceil(timer.getTimeMs() / 1000.0) + 1; // there is one timer, and it goes on where the last row left it
        for (const double moment : {row.begin, row.end}) {
            clock.sleep(start + moment - clock.now());
            timer.tick();
        }
        EXPECT_EQ(timer.getDelta(), static_cast<float>(row.milliseconds / 1000.0)) << row.what;
        EXPECT_EQ(timer.getTimeMs(), std::floor((start + row.begin) * 1000) + row.milliseconds) << row.what;
        EXPECT_EQ(gameDelta() < 1.0f, row.isShorterThanOneGameSecond) << row.what;
    }
}

} // namespace
