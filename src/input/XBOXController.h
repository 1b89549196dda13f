#pragma once

#include "input/ControlOptions.h"
#include "input/GamePads.h"
#include "input/InputDevice.h"
#include "input/PadInput.h"

#include <vector>

/// A game-pad: usually triggers for throttle and brake, the left stick for steering, A to shoot, B for the hand brake,
/// and the D-pad as buttons of those four. Its state is that of the last update() or isConnected(); unplugged, nothing
/// is pressed and every axis at rest.
class XBOXController : public InputDevice {
public:
    /// number: 1 to 4, the pad's slot. The pads are borrowed.
    explicit XBOXController(int number, GamePads& pads = gamePads(), const ControlOptions& controls = {});

    bool isPressed(int button) override;
    float getAxis(int axis) override;
    void vibrate(int milliseconds, std::uint16_t leftMotor, std::uint16_t rightMotor) override;
    void setJoined() override; ///< the next pad that comes is this player's, should the pad be lost
    void setLight(const glm::vec3& colour) override;
    void update() override; ///< also end a rumble whose time is over
    bool isConnected() override;
    std::string getName() const override;
    bool isStartPressed() override;
    bool isBackPressed() override;

private:
    float amount(int button) const;

    int slot;
    GamePads& hardware;
    std::vector<PadInput> inputs; // by button
    int deadZone;                 // the first stick position that counts
    int rumble;                   // how strong, percent
    double vibrationEnd = 0;      // milliseconds of the frame timer
    bool vibrating = false;
    GamePadState state;
};
