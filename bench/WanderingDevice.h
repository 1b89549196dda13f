#pragma once

#include "input/InputDevice.h"

#include <cmath>

/// A driver for benchmarks: full throttle, swerving slowly, each in its own rhythm, and always shooting.
class WanderingDevice : public InputDevice {
public:
    explicit WanderingDevice(unsigned slot) : phase(static_cast<float>(slot)) {}

    bool isPressed(int button) override { return button == kShoot; }
    float getAxis(int axis) override
    {
        if (axis == kThrottleAxis) return 1.0f;
        return axis == kSteeringAxis ? 0.6f * std::sin(0.013f * static_cast<float>(updates) + phase) : 0.0f;
    }
    void vibrate(int, std::uint16_t, std::uint16_t) override {}
    void update() override { ++updates; }
    bool isConnected() override { return true; }
    std::string getName() const override { return "Bench"; }
    bool isStartPressed() override { return false; }
    bool isBackPressed() override { return false; }

private:
    float phase;
    int updates = 0;
};
