#pragma once

#include "input/InputDevice.h"

#include <array>
#include <set>
#include <string>
#include <vector>

/// An input device that a test moves, unplugs, and asks what it was made to rumble.
class ScriptedDevice : public InputDevice {
public:
    struct Rumble {
        int milliseconds;
        int leftMotor, rightMotor;
        bool operator==(const Rumble&) const = default;
    };

    bool isPressed(int button) override { return pressed.count(button) != 0; }
    float getAxis(int axis) override { return axes.at(static_cast<std::size_t>(axis)); }
    void vibrate(int milliseconds, std::uint16_t left, std::uint16_t right) override { rumbles.push_back({milliseconds, left, right}); }
    void update() override { ++updates; }
    bool isConnected() override { return connected; }
    std::string getName() const override { return "script"; }
    bool isStartPressed() override { return isPressed(kStart); }
    bool isBackPressed() override { return false; }

    std::set<int> pressed;
    std::array<float, 4> axes{};
    bool connected = true;
    int updates = 0;
    std::vector<Rumble> rumbles;
};
