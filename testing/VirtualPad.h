#pragma once

#include <SDL.h>

#include <array>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// The game-controller library for one test, so that pads can be there before the program looks for any.
class PadLibrary {
public:
    PadLibrary()
    {
        if (SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) != 0) throw std::runtime_error(SDL_GetError());
    }
    ~PadLibrary() { SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER); }
    PadLibrary(const PadLibrary&) = delete;
    PadLibrary& operator=(const PadLibrary&) = delete;
};

/// A pad that the library cannot tell from a real one, plugged in until unplug(). Its name is "Test pad " and the
/// number of its model; pads of one model are twins.
class VirtualPad {
public:
    using Motors = std::pair<int, int>; ///< left, right

    explicit VirtualPad(Uint16 ownModel = 1, SDL_JoystickType ownType = SDL_JOYSTICK_TYPE_GAMECONTROLLER)
        : model(ownModel), type(ownType)
    {
        plugIn();
    }
    ~VirtualPad() { unplug(); }
    VirtualPad(const VirtualPad&) = delete;
    VirtualPad& operator=(const VirtualPad&) = delete;

    void plugIn()
    {
        const std::string name = "Test pad " + std::to_string(model);
        SDL_VirtualJoystickDesc description{};
        description.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
        description.type = static_cast<Uint16>(type);
        description.naxes = SDL_CONTROLLER_AXIS_MAX;
        description.nbuttons = SDL_CONTROLLER_BUTTON_DPAD_RIGHT + 1;
        description.vendor_id = 0x1209;
        description.product_id = model;
        description.name = name.c_str();
        description.userdata = this;
        description.Update = [](void* self) { ++static_cast<VirtualPad*>(self)->timesAsked; };
        description.SetPlayerIndex = [](void* self, int index) { static_cast<VirtualPad*>(self)->light = index; };
        description.Rumble = [](void* self, Uint16 left, Uint16 right) {
            static_cast<VirtualPad*>(self)->rumbles.emplace_back(left, right);
            return 0;
        };
        description.SetLED = [](void* self, Uint8 red, Uint8 green, Uint8 blue) {
            static_cast<VirtualPad*>(self)->colour = {red, green, blue};
            return 0;
        };
        device = SDL_JoystickOpen(SDL_JoystickAttachVirtualEx(&description));
        if (!device) throw std::runtime_error(SDL_GetError());
        move(SDL_CONTROLLER_AXIS_TRIGGERLEFT, SDL_JOYSTICK_AXIS_MIN); // released
        move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, SDL_JOYSTICK_AXIS_MIN);
    }

    void unplug()
    {
        if (!device) return;
        const SDL_JoystickID id = SDL_JoystickInstanceID(device);
        SDL_JoystickClose(device);
        device = nullptr;
        for (int index = 0; index < SDL_NumJoysticks(); ++index) {
            if (SDL_JoystickGetDeviceInstanceID(index) == id) SDL_JoystickDetachVirtual(index);
        }
    }

    void press(SDL_GameControllerButton button) { SDL_JoystickSetVirtualButton(device, button, 1); }
    void release(SDL_GameControllerButton button) { SDL_JoystickSetVirtualButton(device, button, 0); }

    /// Set an axis by its raw value, -32768 to 32767: a trigger's whole way too.
    void move(SDL_GameControllerAxis axis, int value)
    {
        SDL_JoystickSetVirtualAxis(device, axis, static_cast<Sint16>(value));
    }

    std::vector<Motors> rumbles; ///< what the motors were set to, in order
    int timesAsked = 0;          ///< how often the library read it
    int light = -1;              ///< the slot that its lights show
    std::array<int, 3> colour{}; ///< red, green, blue of its light, 0 to 255

private:
    Uint16 model;
    SDL_JoystickType type;
    SDL_Joystick* device = nullptr;
};
