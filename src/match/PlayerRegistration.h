#pragma once

#include "input/ControlOptions.h"
#include "input/InputDevice.h"
#include "match/StartOptions.h"

#include <array>
#include <memory>

class Match;

/// The devices that people can join with: four game-pads, the arrow keys, W/A/S/D.
using InputDevices = std::array<std::unique_ptr<InputDevice>, 6>;

/// Return the machine's own.
InputDevices makeInputDevices(const ControlOptions& controls = {});

/// Who takes part: the six devices that people can join with, and which of them have. Owned by the registration screen;
/// update() once a frame while that is shown. A device that has joined cannot leave.
class PlayerRegistration {
public:
    static constexpr int kMaxParticipants = 16;
    static constexpr int kMaxComputerPlayers = 10;

    /// The match is borrowed. Simultaneous joiners come in the order of the devices; names go by that order too.
    explicit PlayerRegistration(Match& match, InputDevices devices = makeInputDevices(), const PlayerNames& names = {});

    /// Have those join who need not press anything: the devices in their order, then the computer players.
    void admit(const StartOptions& start);

    /// Note that the registration screen is shown anew: a space bar that is held counts as pressed once more.
    void restart() { spaceHeld = false; }

    /// Read the devices and the space bar. The first press of a device's shoot button adds its player to the match,
    /// each press of the space bar a computer player.
    void update();

    /// Return whether the match begins: as many take part as can, or at least two do and one of the registered devices
    /// holds its start button.
    bool shouldStart() const;

    /// Return whether somebody could start the match: at least two take part, and one of them is a person.
    bool mayStart() const;

private:
    struct Slot {
        std::unique_ptr<InputDevice> device;
        std::string name; // of who joins with it
        bool registered = false;
        bool startPressed = false; // in this frame
    };

    void readDevices();
    void join(Slot& slot);
    void addComputerPlayer();
    void readSpaceBar();

    Match& match;
    std::array<Slot, std::tuple_size_v<InputDevices>> slots;
    bool spaceHeld = false;
};
