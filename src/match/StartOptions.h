#pragma once

#include <optional>
#include <vector>

/// The devices that people can join with, in the order of PlayerRegistration's slots.
enum class JoinDevice { Pad1, Pad2, Pad3, Pad4, Arrows, Wasd };

/// Who takes part without having to press anything, and how the match begins.
struct StartOptions {
    int computerPlayers = 0;          ///< 0 to PlayerRegistration::kMaxComputerPlayers
    std::vector<JoinDevice> join;     ///< each once, in the order of their numbers in the match
    bool atOnce = false;              ///< go straight into the match
    std::optional<unsigned> seed = 1; ///< of the places of respawn; nothing: another in each run
};
