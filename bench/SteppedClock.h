#pragma once

#include "base/FrameTimer.h"

/// A clock that moves only when it is told to: the same passes in every run, however long they take to compute.
class SteppedClock : public IClock {
public:
    explicit SteppedClock(double secondsPerStep = 1.0 / 60.0) : step(secondsPerStep) {}

    void advance() { seconds += step; }

    double now() override { return seconds; }
    void sleep(double) override {} // the step is the whole pass, its sleep included

private:
    double step;
    double seconds = 0;
};
