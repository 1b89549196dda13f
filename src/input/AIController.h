#pragma once

#include "input/IPilot.h"
#include "input/InputDevice.h"

/// The computer's own device: picks a target, measures once a frame where it lies, and answers the driver's questions
/// from that. Owned by the player it drives; setPlayer() once, before the first update().
class AIController : public InputDevice {
public:
    explicit AIController(int number); ///< the index that players see is one less

    /// Set the car to drive and the field to drive on; both borrowed.
    void setPlayer(const IPilot& ownPilot, const IField& ownField);

    bool isPressed(int button) override; ///< shoot at what is ahead or close, hand brake in sharp turns at speed
    float getAxis(int axis) override;    ///< throttle and steering towards the target; all 0 without one
    void vibrate(int, std::uint16_t, std::uint16_t) override {}
    void update() override;
    bool isConnected() override { return true; }
    std::string getName() const override;
    bool isStartPressed() override { return false; }
    bool isBackPressed() override { return false; }

private:
    void updateTarget();
    void measure();

    int index;
    const IPilot* pilot = nullptr;
    const IField* field = nullptr;
    const IPilot* target = nullptr;
    float angle = 0;       // degrees, 0 to 180: between the car's front and the target, seen from above
    float side = 0;        // positive: the target is to the right
    float distance = 0;    // world units
    int targetDeaths = -1; // the target's deaths when it was chosen
    double lastSeen;       // milliseconds of the frame timer: when the target was last ahead
};
