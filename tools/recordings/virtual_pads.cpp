// Preloaded into the game, it plugs four virtual pads in: the pad library has them within one process only, and a
// machine may have none of its own. What is done with them stands in a file that the game's player shares.

#include "testing/VirtualPad.h"
#include "tools/recordings/PadStates.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

namespace {

const PadStates* mapStates()
{
    const char* const path = std::getenv(kPadStatesVariable);
    const int file = path ? open(path, O_RDONLY | O_CLOEXEC) : -1;
    if (file < 0) throw std::runtime_error("no states of pads");
    void* const memory = mmap(nullptr, sizeof(PadStates), PROT_READ, MAP_SHARED, file, 0);
    close(file);
    if (memory == MAP_FAILED) throw std::runtime_error("states of pads cannot be shared");
    return static_cast<const PadStates*>(memory);
}

void apply(const PadState& state, VirtualPad& pad)
{
    const auto set = [&pad](SDL_GameControllerButton button, bool down) {
        down ? pad.press(button) : pad.release(button);
    };
    pad.move(SDL_CONTROLLER_AXIS_LEFTX, state.stick);
    pad.move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, state.gas);
    pad.move(SDL_CONTROLLER_AXIS_TRIGGERLEFT, state.brake);
    set(SDL_CONTROLLER_BUTTON_A, state.shoots);
    set(SDL_CONTROLLER_BUTTON_START, state.starts);
}

} // namespace

/// In place of the library's, which the game calls before it reads its pads.
extern "C" __attribute__((visibility("default"))) void SDL_GameControllerUpdate()
{
    static const PadStates& states = *mapStates();
    static auto* const pads = new std::vector<VirtualPad>(states.size()); // stay plugged in to the end
    static auto* const update = reinterpret_cast<void (*)()>(dlsym(RTLD_NEXT, "SDL_GameControllerUpdate"));
    for (std::size_t i = 0; i < states.size(); ++i) apply(states[i], (*pads)[i]);
    update();
}
