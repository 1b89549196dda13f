#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct GamePadState;

/// Something on a game-pad that can be pressed or pushed: a button, a trigger, or half of the way of a stick's axis.
/// Its words are those of SDL's mappings: "a", "rightshoulder", "lefttrigger", "-leftx" (left), "+lefty" (down).
class PadInput {
public:
    /// word: one of padWords(); anything else is never pressed.
    explicit PadInput(const std::string& word);

    /// Return how far it is pushed, 0 to 1; a button is or is not. Stick positions nearer to rest than deadZone (see
    /// deadZoneOf()) count as rest.
    float amount(const GamePadState& state, int deadZone) const;

private:
    enum class Kind { kNone, kButton, kTrigger, kStick } kind = Kind::kNone;
    int number = 0; // SDL's, of the button or the axis
    int sign = 1;   // of the half that counts, of a stick
};

/// Return a stick's position, -32768 to 32767, as -1 to 1; 0 nearer to rest than deadZone.
float stickAmount(std::int16_t position, int deadZone);

/// Return the first stick position that counts when that share of its way, 0 to 100 percent, is rest.
int deadZoneOf(int percent);

/// Return every word that names something on a game-pad.
std::vector<std::string> padWords();
