#pragma once

#include "input/ControlOptions.h"

#include <initializer_list>
#include <string>

// How help names keys and buttons. `usual` is what it says as long as they are the usual ones, and may say more than
// their words do.

using Buttons = std::initializer_list<InputDevice::Button>;

/// Return the keys of half a keyboard, 0 for the arrows or 1, for these buttons.
std::string shownKeys(const ControlOptions& controls, std::size_t half, Buttons buttons, const std::string& usual);

/// Return the game-pads' buttons; where pads differ, with their numbers, as in "A, 2:X".
std::string shownPadButtons(const ControlOptions& controls, Buttons buttons, const std::string& usual);

/// Return what starts the match, on all devices; Tab, the usual key of the second half, is left out.
std::string shownStart(const ControlOptions& controls, const std::string& usual);
