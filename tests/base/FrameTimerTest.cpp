#include "app/base/FrameTimer.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr float kPeriod = 1 / 120.0f; // seconds, the shortest pass

/// Stands still unless it is set or slept on; a sleep passes exactly as long as asked.
class SteppedClock : public IClock {
public:
    double now() override { return seconds; }

    void sleep(double duration) override
    {
        slept = duration;
        if (duration > 0) seconds += duration;
    }

    double seconds = 0;
    double slept = std::nan("");
};

class FrameTimerTest : public testing::Test {
protected:
    FrameTimerTest() { timer.setClock(&clock); }
    ~FrameTimerTest() override { timer.setClock(nullptr); }

    /// A tick that begins with the clock this long after the test's start.
    void tickAt(double seconds)
    {
        clock.seconds = start + seconds;
        timer.tick();
    }

    FrameTimer& timer = *FrameTimer::getInstance();
    SteppedClock clock;
    const double start = std::ceil(timer.getTimeMs() / 1000.0) + 1; // there is one timer, and it goes on where the last test left it
};

TEST_F(FrameTimerTest, SleepsWhatTheWorkLeftOfThePeriod)
{
    tickAt(1.0005);
    tickAt(1.0035);
    EXPECT_FLOAT_EQ(static_cast<float>(clock.slept), kPeriod - 0.003f);
    EXPECT_FLOAT_EQ(timer.getDelta(), 0.008f) << "the pass with its sleep, in whole milliseconds";
    EXPECT_EQ(timer.getTimeMs(), (start + 1) * 1000 + 8);
}

TEST_F(FrameTimerTest, AsksForNoSleepAfterALongPass)
{
    tickAt(1.0005);
    tickAt(1.0505);
    EXPECT_FLOAT_EQ(static_cast<float>(clock.slept), kPeriod - 0.05f);
    EXPECT_FLOAT_EQ(timer.getDelta(), 0.05f);
}

struct Pass {
    const char* what;
    double begin, end; // seconds on the clock
    int milliseconds;  // what the timer makes of it
    bool isShorterThanOneGameSecond;
};

class FrameTimerPasses : public FrameTimerTest, public testing::WithParamInterface<Pass> {};

TEST_P(FrameTimerPasses, AreMeasuredInWholeMilliseconds)
{
    tickAt(GetParam().begin);
    tickAt(GetParam().end);
    EXPECT_EQ(timer.getDelta(), static_cast<float>(GetParam().milliseconds / 1000.0)) << GetParam().what;
    EXPECT_EQ(gameDelta() < 1.0f, GetParam().isShorterThanOneGameSecond) << GetParam().what;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, FrameTimerPasses, testing::Values(
    Pass{"both ends truncated, not rounded", 2.0009, 2.0509, 50, true},
    Pass{"the fraction of a millisecond carries over", 2.0009, 2.0511, 51, true},
    Pass{"a third of a second that spans 333 whole milliseconds", 3.0001, 3.0001 + 1.0 / 3, 333, true},
    Pass{"a third of a second that spans 334 whole milliseconds", 3.0008, 3.0008 + 1.0 / 3, 334, false},
    Pass{"a long pass", 5.0, 7.5, 2500, false}));
// clang-format on

} // namespace
