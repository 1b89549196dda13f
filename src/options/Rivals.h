#pragma once

#include "options/Options.h"

#include <filesystem>
#include <limits>
#include <map>
#include <optional>
#include <string>

// Options of which no two may be set to the same, such as the keys.

/// Where options have been set: the line of the settings file, by name. Those that are not here are as by default.
using SetWhere = std::map<std::string, int>;
constexpr int kOnCommandLine = std::numeric_limits<int>::max(); // after every line

/// Two options that are set to the same.
struct Rivalry {
    std::string loser; ///< the one of them that was set last, or by --comfort
    std::string fault; ///< names both, and where they were set; empty where --comfort's gives way
};

/// Return the first two options that are set to the same and may not be; nothing when there are none.
std::optional<Rivalry> findRivalry(const Options& options, const SetWhere& where, const std::filesystem::path& file);

/// Set an option to its default.
void resetOption(const std::string& name, Options& options, SetWhere& where);
