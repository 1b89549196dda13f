#include "base/FrameTimer.h"

#include <chrono>
#include <thread>

namespace {

class SteadyClock : public IClock {
public:
    double now() override { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(); }

    void sleep(double seconds) override
    {
        if (seconds > 0) std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    }

private:
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

IClock* steadyClock()
{
    static SteadyClock* instance = new SteadyClock();
    return instance;
}

} // namespace

FrameTimer::FrameTimer() : clock(steadyClock()) {}

FrameTimer* FrameTimer::getInstance()
{
    static FrameTimer* instance = new FrameTimer();
    return instance;
}

void FrameTimer::setClock(IClock* newClock)
{
    clock = newClock ? newClock : steadyClock();
}

int FrameTimer::readMilliseconds()
{
    return static_cast<int>(clock->now() * 1000.0);
}

void FrameTimer::tick()
{
    const int previous = lastTimeMs;
    lastTimeMs = readMilliseconds();
    const float elapsedSeconds = static_cast<float>((lastTimeMs - previous) * static_cast<double>(0.001f));
    const float period = 1 / fps;
    clock->sleep(static_cast<double>(period - elapsedSeconds));
    lastTimeMs = readMilliseconds();
    delta = static_cast<float>((lastTimeMs - previous) / 1000.0);
}

float gameDelta()
{
    return FrameTimer::getInstance()->getDelta() * kGameTimeScale;
}

bool isPassTooLong()
{
    constexpr float kTooLong = 1.0f; // seconds of game time
    return gameDelta() >= kTooLong;
}
