#pragma once

#include "base/FrameTimer.h"

/// A clock that only sleeping moves on: the frame timer's passes then last exactly as long as it asks for. In place of
/// the frame timer's for as long as it lives.
class SteppedClock : public IClock {
public:
    SteppedClock() { FrameTimer::getInstance()->setClock(this); }
    ~SteppedClock() override { FrameTimer::getInstance()->setClock(nullptr); }
    SteppedClock(const SteppedClock&) = delete;
    SteppedClock& operator=(const SteppedClock&) = delete;

    double now() override { return seconds; }

    void sleep(double duration) override
    {
        if (duration > 0) seconds += duration;
    }

private:
    double seconds = 0;
};
