#pragma once

#include "options/Options.h"

#include <filesystem>
#include <string>
#include <vector>

/// What command line and settings file say together.
struct ReadOptions {
    Options options;
    std::string fault;                   ///< of the command line, one line; empty: none. Then the rest means nothing
    std::vector<std::string> complaints; ///< about the settings file, one line each; what they are about is left out
    std::filesystem::path settingsFile;  ///< read if it was there; empty when the user has no place for one
};

/// Read the command line (without the program's name) and the settings file: the user's own, or the one that --config
/// names. The command line beats the file.
ReadOptions readOptions(const std::vector<std::string>& arguments);
