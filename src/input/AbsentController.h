#pragma once

#include "input/InputDevice.h"

/// The place of a game-pad that is not there: named after its slot, never connected, nothing pressed, every axis at rest.
class AbsentController : public InputDevice {
public:
    /// slot: 1 to 4.
    explicit AbsentController(int slot) : slotNumber(slot) {}

    bool isPressed(int) override { return false; }
    float getAxis(int) override { return 0.0f; }
    void vibrate(int, std::uint16_t, std::uint16_t) override {}
    void update() override {}
    bool isConnected() override { return false; }
    std::string getName() const override;
    bool isStartPressed() override { return false; }
    bool isBackPressed() override { return false; }

private:
    int slotNumber;
};
