#pragma once

/// Where the frame timer takes its time from: the window library's clock in the game, a stepped one in tests and
/// benchmarks.
class IClock {
public:
    virtual ~IClock() = default;

    /// Seconds since some fixed moment.
    virtual double now() = 0;

    /// Sleeps about that long; zero and negative values return at once.
    virtual void sleep(double seconds) = 0;
};

/// Paces the main loop and measures its passes. Created on first use, never destroyed. tick() once a pass, then read.
class FrameTimer {
public:
    static FrameTimer* getInstance();

    /// Replaces the clock (borrowed; it must outlive its use). Null goes back to the machine's steady clock.
    void setClock(IClock* newClock);

    /// Sleeps so that the pass lasts at least 1/120 s, then measures it, at millisecond resolution.
    void tick();

    /// Seconds of the last pass, sleep included.
    float getDelta() const { return delta; }

    /// Whole milliseconds of the clock at the end of the last tick.
    double getTimeMs() const { return lastTimeMs; }

private:
    FrameTimer();

    int readMilliseconds();

    int lastTimeMs = 0;
    float delta = 0;
    float fps = 120.0f; // target frame rate, passes per second
    IClock* clock = nullptr;
};

/// Game time runs this many times faster than the wall clock: whatever is integrated over time uses delta x this.
constexpr float kGameTimeScale = 3.0f;

/// Seconds of game time of the last pass.
float gameDelta();
