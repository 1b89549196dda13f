#pragma once

#include "base/FrameTimer.h"

#include <algorithm>

/// A clock that only sleeping moves on: the same passes in every run, however long they take to compute. In place of
/// the frame timer's own for as long as it lives.
class SteppedClock : public IClock {
public:
    /// passSeconds: what a pass of the frame timer lasts, where that is more than the 1/120 s that it asks for.
    explicit SteppedClock(double passSeconds = 0) : shortest(passSeconds) { FrameTimer::getInstance()->setClock(this); }
    ~SteppedClock() override { FrameTimer::getInstance()->setClock(nullptr); }

    double now() override { return seconds; }
    void sleep(double duration) override { seconds += std::max(duration, shortest); }

private:
    double shortest;
    double seconds = 0;
};
