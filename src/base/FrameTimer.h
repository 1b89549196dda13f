#pragma once

/// Where the frame timer takes its time from: the window library's clock in the game, a stepped one in tests and
/// benchmarks.
class IClock {
public:
    virtual ~IClock() = default;

    /// Return the seconds since some fixed moment.
    virtual double now() = 0;

    /// Sleep about that long; not at all for zero and negative values.
    virtual void sleep(double seconds) = 0;
};

/// Paces the main loop and measures its passes. Created on first use, never destroyed. tick() once a pass, then read.
class FrameTimer {
public:
    static FrameTimer* getInstance();

    /// Take the time from that clock from now on (borrowed); null stands for the machine's steady clock.
    void setClock(IClock* newClock);

    /// Sleep until the pass has lasted 1/120 s at least, then measure it, in whole milliseconds.
    void tick();

    /// Return the seconds of the last pass, sleep included.
    float getDelta() const { return delta; }

    /// Return the whole milliseconds of the clock at the end of the last tick.
    double getTimeMs() const { return lastTimeMs; }

private:
    FrameTimer();

    int readMilliseconds();

    int lastTimeMs = 0;
    float delta = 0;
    float fps = 120.0f; // target frame rate, passes per second
    IClock* clock = nullptr;
};

/// Game time runs this many times faster than the clock: whatever moves by time uses delta x this.
constexpr float kGameTimeScale = 3.0f;

/// Return the seconds of game time of the last pass.
float gameDelta();

/// Return whether the last pass took so long, a third of a second on the wall, that it is neither computed nor drawn.
bool isPassTooLong();
