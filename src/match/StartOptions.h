#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

/// The devices that people can join with, in the order of PlayerRegistration's slots.
enum class JoinDevice { Pad1, Pad2, Pad3, Pad4, Arrows, Wasd };

/// What the people at the devices are called, by JoinDevice; empty: as their device.
using PlayerNames = std::array<std::string, 6>;

/// As many letters of a name as go into a sixth of the window.
constexpr std::size_t kLongestName = 9;

/// Who takes part without having to press anything, how people are called, and how the match begins.
struct StartOptions {
    int computerPlayers = 0;          ///< 0 to PlayerRegistration::kMaxComputerPlayers
    std::vector<JoinDevice> join;     ///< each once, in the order of their numbers in the match
    bool atOnce = false;              ///< go straight into the match
    std::optional<unsigned> seed = 1; ///< of the places of respawn; nothing: another in each run
    PlayerNames names;                ///< of at most kLongestName letters
};
