#include "input/GamePads.h"

#include "base/FrameTimer.h"
#include "base/Logger.h"

#include <SDL.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr Uint32 kLongestRumbleMs = 0xFFFF; // what the library grants at most

static_assert(SDL_CONTROLLER_BUTTON_MAX <= 32 && SDL_CONTROLLER_AXIS_MAX == GamePadState::kAxisCount);

GamePadState stateOf(SDL_GameController* pad)
{
    GamePadState state;
    if (!pad) return state;
    state.connected = true;
    for (int button = 0; button < SDL_CONTROLLER_BUTTON_MAX; ++button)
        if (SDL_GameControllerGetButton(pad, static_cast<SDL_GameControllerButton>(button)))
            state.buttons |= std::uint32_t(1) << button;
    for (int axis = 0; axis < SDL_CONTROLLER_AXIS_MAX; ++axis)
        state.axes[static_cast<std::size_t>(axis)] =
            SDL_GameControllerGetAxis(pad, static_cast<SDL_GameControllerAxis>(axis));
    return state;
}

Uint8 lightByte(float component)
{
    return static_cast<Uint8>(std::lround(std::clamp(component, 0.0f, 1.0f) * 255));
}

std::string textOf(const char* text)
{
    return text ? text : "";
}

std::string guidOf(SDL_Joystick* device)
{
    char text[33] = "";
    SDL_JoystickGetGUIDString(SDL_JoystickGetGUID(device), text, sizeof text);
    return text;
}

GamePadSlots::Pad describe(int id, SDL_GameController* pad)
{
    return {id, guidOf(SDL_GameControllerGetJoystick(pad)), textOf(SDL_GameControllerGetSerial(pad)),
        textOf(SDL_GameControllerPath(pad)), textOf(SDL_GameControllerName(pad))};
}

} // namespace

GamePads& gamePads()
{
    static GamePads pads;
    return pads;
}

std::vector<std::string> gamePadNames()
{
    std::vector<std::string> names;
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) != 0) return names;
    for (int index = 0; index < SDL_NumJoysticks(); ++index)
        if (SDL_IsGameController(index)) names.push_back(textOf(SDL_GameControllerNameForIndex(index)));
    SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
    return names;
}

void GamePads::Closer::operator()(_SDL_GameController* handle) const
{
    SDL_GameControllerClose(handle);
}

GamePads::~GamePads()
{
    handles.clear();
    if (library == Library::kRunning) SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
}

const GamePadState& GamePads::read(int slot)
{
    const double nowMs = FrameTimer::getInstance()->getTimeMs();
    if (library == Library::kNotStarted) start();
    if (library == Library::kRunning && nowMs != polledMs) poll();
    polledMs = nowMs;
    return states[static_cast<std::size_t>(slot)];
}

void GamePads::rumble(int slot, std::uint16_t leftMotor, std::uint16_t rightMotor)
{
    SDL_GameController* pad = handleIn(slot);
    if (pad) SDL_GameControllerRumble(pad, leftMotor, rightMotor, kLongestRumbleMs);
}

void GamePads::setLight(int slot, const glm::vec3& colour)
{
    lights[static_cast<std::size_t>(slot)] = colour;
    showLight(slot);
}

void GamePads::showLight(int slot)
{
    const std::optional<glm::vec3>& colour = lights[static_cast<std::size_t>(slot)];
    SDL_GameController* const pad = handleIn(slot);
    if (colour && pad && SDL_GameControllerHasLED(pad))
        SDL_GameControllerSetLED(pad, lightByte(colour->r), lightByte(colour->g), lightByte(colour->b));
}

void GamePads::start()
{
    SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1"); // the window with the focus is not this library's
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) != 0) {
        library = Library::kFailed;
        logLine(1) << "No game-pads: " << SDL_GetError() << std::endl;
        return;
    }
    library = Library::kRunning;
    // Nobody reads the library's event queue: pads are asked.
    SDL_JoystickEventState(SDL_IGNORE);
    SDL_GameControllerEventState(SDL_IGNORE);
}

void GamePads::poll()
{
    SDL_GameControllerUpdate();
    if (takePresent()) {
        closeDeparted();
        openArrivals();
        assignSlots();
    }
    for (int slot = 0; slot < kSlotCount; ++slot) states[static_cast<std::size_t>(slot)] = stateOf(handleIn(slot));
}

// Take in what is plugged in. Return true when that has changed since the last time.
bool GamePads::takePresent()
{
    std::vector<int> now(static_cast<std::size_t>(std::max(SDL_NumJoysticks(), 0)));
    for (std::size_t index = 0; index < now.size(); ++index)
        now[index] = SDL_JoystickGetDeviceInstanceID(static_cast<int>(index));
    if (now == present) return false;
    present.swap(now);
    return true;
}

void GamePads::closeDeparted()
{
    std::erase_if(plugged, [this](const GamePadSlots::Pad& pad) {
        if (std::find(present.begin(), present.end(), pad.id) != present.end()) return false;
        const int slot = slots.slotOf(pad.id);
        if (slot != GamePadSlots::kNoSlot)
            logLine(2) << "Game-pad " << slot + 1 << " unplugged: " << pad.name << std::endl;
        handles.erase(pad.id);
        return true;
    });
}

void GamePads::openArrivals()
{
    for (std::size_t index = 0; index < present.size(); ++index) {
        const int id = present[index], deviceIndex = static_cast<int>(index);
        if (handles.count(id) != 0 || !SDL_IsGameController(deviceIndex)) continue;
        Handle handle(SDL_GameControllerOpen(deviceIndex));
        if (!handle) {
            logLine(1) << "Cannot open game-pad " << textOf(SDL_GameControllerNameForIndex(deviceIndex)) << ": "
                       << SDL_GetError() << std::endl;
            continue;
        }
        plugged.push_back(describe(id, handle.get()));
        handles[id] = std::move(handle);
    }
}

void GamePads::assignSlots()
{
    const GamePadSlots before = slots;
    slots.update(plugged);
    for (const GamePadSlots::Pad& pad : plugged) {
        const int slot = slots.slotOf(pad.id);
        if (slot != before.slotOf(pad.id)) {
            SDL_GameControllerSetPlayerIndex(handleIn(slot), slot); // the number that the pad's lights show
            showLight(slot);
            const std::string& replaced = slots.replacedIn(slot);
            logLine(2) << "Game-pad " << slot + 1 << " plugged in: " << pad.name
                       << (replaced.empty() ? "" : ", in place of " + replaced) << std::endl;
        } else if (slot == GamePadSlots::kNoSlot && !before.isWaiting(pad.id)) {
            logLine(2) << "Game-pad waits for a free slot: " << pad.name << std::endl;
        }
    }
}

SDL_GameController* GamePads::handleIn(int slot) const
{
    const auto found = handles.find(slots.padIn(slot));
    return found == handles.end() ? nullptr : found->second.get();
}
