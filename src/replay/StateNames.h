#pragma once

#include <recording.pb.h>

#include <algorithm>
#include <array>
#include <string>

// The game's states as a recording numbers them.
constexpr std::array kStateNames = {"RegisterPlayersGamestate", "PlayGamestate", "DebugGamestate"};

inline const char* nameOf(recording::State state)
{
    return kStateNames.at(static_cast<std::size_t>(state));
}

inline recording::State stateNamed(const std::string& name)
{
    return static_cast<recording::State>(std::find(kStateNames.begin(), kStateNames.end(), name) - kStateNames.begin());
}
