#pragma once

#include "input/InputDevice.h"

#include <array>
#include <string>

/// What people drive with. By InputDevice::Button, for each device, the word of the key (see platform/KeyWords) or of
/// the game-pad's button (see input/PadInput) that does it.
struct ControlOptions {
    using Words = std::array<std::string, InputDevice::kButtonCount>;

    static inline const Words kUsualButtons{"righttrigger", "lefttrigger", "-leftx", "+leftx", "a", "b", "start"};

    std::array<Words, 2> halves{{
        {"up", "down", "left", "right", "k", "l", "enter"},
        {"w", "s", "a", "d", "1", "2", "tab"},
    }};
    std::array<Words, 4> pads{kUsualButtons, kUsualButtons, kUsualButtons, kUsualButtons};
    int rumble = 100;  ///< how strong, percent
    int deadZone = 24; ///< the part of a stick's way that counts as rest, percent
};
