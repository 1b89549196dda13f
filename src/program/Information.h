#pragma once

#include <filesystem>

// What the program tells about itself and the machine, on standard output. Needs no display.

/// Print the versions of the game and of the libraries that it runs on, and where its data are. givenData: the data
/// folder that was asked for, empty for none.
void printVersions(const std::filesystem::path& givenData);

/// Print the names of monitors, sound devices and game-pads.
void printDevices();
