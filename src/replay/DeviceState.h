#pragma once

#include "input/InputDevice.h"

#include <recording.pb.h>

#include <array>
#include <string>

/// What an input device has said to the game last; at rest before it has said anything.
struct DeviceState {
    static constexpr unsigned kStartBit = 1U << InputDevice::kButtonCount;
    static constexpr unsigned kBackBit = kStartBit << 1;
    static constexpr int kAxisCount = InputDevice::kStickVerticalAxis + 1;

    bool connected = false;
    unsigned buttons = 0; ///< a bit each, and the two above
    std::array<float, kAxisCount> axes{};
    std::string name;

    bool operator==(const DeviceState&) const = default;

    /// Return the bit of a button, 0 for a number that is none.
    static unsigned bitOf(int button) { return button >= 0 && button < InputDevice::kButtonCount ? 1U << button : 0; }

    /// Set or clear a bit.
    void press(unsigned bit, bool down) { buttons = down ? buttons | bit : buttons & ~bit; }

    /// Put down what is other than before.
    void writeChange(const DeviceState& before, recording::Device& change) const;

    /// Take in such a change.
    void apply(const recording::Device& change);
};
