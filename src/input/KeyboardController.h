#pragma once

#include "input/ControlOptions.h"
#include "input/InputDevice.h"

#include <array>

/// One half of the keyboard: usually the arrow keys with K, L and Enter, or W, A, S, D with 1, 2 and Tab. Always
/// connected; cannot rumble. Throttle and steering are all or nothing: the car's own input smoothing makes ramps of
/// them.
class KeyboardController : public InputDevice {
public:
    /// layout: 1 for the arrow keys, 2 for W, A, S, D.
    explicit KeyboardController(int layout, const ControlOptions& controls = {});

    bool isPressed(int button) override;
    float getAxis(int axis) override;
    void vibrate(int, std::uint16_t, std::uint16_t) override {}
    void update() override;
    bool isConnected() override { return true; }
    std::string getName() const override;
    bool isStartPressed() override; ///< Enter, on both halves
    bool isBackPressed() override;  ///< Escape, on both halves

private:
    float amount(int button) { return isPressed(button) ? 1.0f : 0.0f; }

    int keySet;                         // 0 or 1
    std::array<int, kButtonCount> keys; // GLFW's, by button
};
