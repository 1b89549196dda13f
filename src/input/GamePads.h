#pragma once

#include "input/GamePadSlots.h"

#include <glm/vec3.hpp>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct _SDL_GameController;

/// What one game-pad shows at one moment; all at rest while there is none.
struct GamePadState {
    static constexpr int kAxisCount = 6;

    bool connected = false;
    std::uint32_t buttons = 0;                   ///< a bit for each that is held, by SDL's number
    std::array<std::int16_t, kAxisCount> axes{}; ///< by SDL's number: triggers 0 (released) to 32767; sticks -32768
                                                 ///< (left, up) to 32767 (right, down)

    bool isHeld(int button) const { return (buttons >> button & 1) != 0; }
    std::int16_t axis(int number) const { return axes[static_cast<std::size_t>(number)]; }
};

/// The machine's game-pads in four stable slots, by SDL's game-controller interface. Pads may come and go at any time;
/// each change is a log line. The library starts with the first read() and ends with this object. One object at a time,
/// on the main thread.
class GamePads {
public:
    static constexpr int kSlotCount = GamePadSlots::kSlotCount;

    GamePads() = default;
    ~GamePads();
    GamePads(const GamePads&) = delete;
    GamePads& operator=(const GamePads&) = delete;

    /// Return the state of the pad in a slot (0 to 3) in this pass of the main loop. Ask the hardware once a pass,
    /// however often this is called.
    const GamePadState& read(int slot);

    /// Set the motor speeds, 0 to 65535, until the next call (at most 65 seconds). Nothing happens while the slot has
    /// no pad.
    void rumble(int slot, std::uint16_t leftMotor, std::uint16_t rightMotor);

    /// Have the pad in a slot, now and whenever one comes, show a colour (red, green, blue, 0 to 1) if it has a light.
    void setLight(int slot, const glm::vec3& colour);

    /// Note that from now on a player drives with this slot (0 to 3): should the pad be lost, the next one takes it.
    void setJoined(int slot) { slots.setJoined(slot); }

private:
    struct Closer {
        void operator()(_SDL_GameController* handle) const;
    };
    using Handle = std::unique_ptr<_SDL_GameController, Closer>;

    void start();
    void poll();
    bool takePresent();
    void closeDeparted();
    void openArrivals();
    void assignSlots();
    void showLight(int slot);
    _SDL_GameController* handleIn(int slot) const;

    enum class Library { kNotStarted, kRunning, kFailed } library = Library::kNotStarted;
    double polledMs = -1;                   // the frame timer's time of the pass that the states are from
    std::vector<int> present;               // the library's ids of whatever is plugged in, game-pads or not
    std::vector<GamePadSlots::Pad> plugged; // the game-pads among them, the longest-known first
    std::map<int, Handle> handles;          // theirs, by id
    GamePadSlots slots;
    std::array<GamePadState, kSlotCount> states;
    std::array<std::optional<glm::vec3>, kSlotCount> lights;
};

/// Return the names of the game-pads that are plugged in, in the order in which they get slots. Call it while there are
/// no GamePads that run.
std::vector<std::string> gamePadNames();

/// Return the game's own, created on first use and closed when the program ends, which also stops motors that still
/// run.
GamePads& gamePads();
