#pragma once

#include "input/InputDevice.h"

#include <array>
#include <vector>

/// A device whose sticks, buttons and plug a test holds, and which remembers its rumbles.
class ScriptedDevice : public InputDevice {
public:
    bool isPressed(int button) override { return buttons.at(static_cast<std::size_t>(button)); }
    float getAxis(int axis) override { return axes.at(static_cast<std::size_t>(axis)); }
    void vibrate(int milliseconds, std::uint16_t left, std::uint16_t right) override
    {
        rumbles.push_back({milliseconds, left, right});
    }
    void update() override {}
    bool isConnected() override { return connected; }
    std::string getName() const override { return "Script"; }
    bool isStartPressed() override { return false; }
    bool isBackPressed() override { return false; }

    std::array<bool, 7> buttons{};
    std::array<float, 4> axes{};
    bool connected = true;
    std::vector<std::array<int, 3>> rumbles; ///< milliseconds, left and right motor
};
