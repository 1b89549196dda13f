#pragma once

#include <array>
#include <atomic>
#include <cstdint>

/// What hands do with a game-pad, in memory that two processes share.
struct PadState {
    std::atomic<std::int16_t> stick = 0;              ///< the left one, -32768 (left) to 32767
    std::atomic<std::int16_t> gas = INT16_MIN;        ///< a trigger's whole way: -32768 to 32767
    std::atomic<std::int16_t> brake = INT16_MIN;      ///< likewise
    std::atomic<bool> shoots = false, starts = false; ///< buttons A and start
};

using PadStates = std::array<PadState, 4>;

constexpr char kPadStatesVariable[] = "QUACKDASH_TEST_PADS"; ///< the environment's: the file that holds them
