#include "input/PadInput.h"

#include "input/GamePads.h"

#include <SDL.h>

#include <algorithm>

namespace {

constexpr float kTriggerRange = 255.0f;
constexpr float kStickRange = 32768.0f;

/// How far from rest worn sticks get too, to all sides: the whole way, in percent of which dead zones are given.
constexpr int kStickWay = 32704;

bool isTrigger(int axis)
{
    return axis == SDL_CONTROLLER_AXIS_TRIGGERLEFT || axis == SDL_CONTROLLER_AXIS_TRIGGERRIGHT;
}

// Return 0..32767 as 0..255, in equal steps.
int triggerByte(std::int16_t value)
{
    return std::max<int>(value, 0) / 128;
}

} // namespace

PadInput::PadInput(const std::string& word)
{
    const bool isHalf = word.starts_with('+') || word.starts_with('-');
    const int button = SDL_GameControllerGetButtonFromString(word.c_str());
    const int axis = SDL_GameControllerGetAxisFromString(word.substr(isHalf ? 1 : 0).c_str());
    if (!isHalf && button != SDL_CONTROLLER_BUTTON_INVALID) {
        kind = Kind::kButton;
        number = button;
    } else if (axis != SDL_CONTROLLER_AXIS_INVALID) {
        kind = isTrigger(axis) ? Kind::kTrigger : Kind::kStick;
        number = axis;
        sign = word[0] == '-' ? -1 : 1;
    }
}

float PadInput::amount(const GamePadState& state, int deadZone) const
{
    switch (kind) {
    case Kind::kButton: return state.isHeld(number) ? 1.0f : 0.0f;
    case Kind::kTrigger: return static_cast<float>(triggerByte(state.axis(number))) / kTriggerRange;
    case Kind::kStick: return std::max(static_cast<float>(sign) * stickAmount(state.axis(number), deadZone), 0.0f);
    case Kind::kNone: break;
    }
    return 0;
}

float stickAmount(std::int16_t position, int deadZone)
{
    const bool resting = position > -deadZone && position < deadZone;
    return resting ? 0.0f : static_cast<float>(position) / kStickRange;
}

int deadZoneOf(int percent)
{
    return (percent * kStickWay + 50) / 100; // rounded
}

std::vector<std::string> padWords()
{
    std::vector<std::string> words;
    words.reserve(SDL_CONTROLLER_BUTTON_MAX + 2 * SDL_CONTROLLER_AXIS_MAX);
    for (int button = 0; button < SDL_CONTROLLER_BUTTON_MAX; ++button)
        words.emplace_back(SDL_GameControllerGetStringForButton(static_cast<SDL_GameControllerButton>(button)));
    for (int axis = 0; axis < SDL_CONTROLLER_AXIS_MAX; ++axis) {
        const std::string word = SDL_GameControllerGetStringForAxis(static_cast<SDL_GameControllerAxis>(axis));
        if (isTrigger(axis)) words.push_back(word);
        else words.insert(words.end(), {"-" + word, "+" + word});
    }
    return words;
}
