#pragma once

#include "options/Options.h"

#include <filesystem>

/// Write all options as they are to a settings file, in place of what it held, with the folders above it, and print one
/// line that says where. Return false, with a line on standard error, when that cannot be done. An empty path: the user
/// has no place for one.
bool writeSettingsFile(const std::filesystem::path& file, const Options& options);
