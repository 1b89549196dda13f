#pragma once

#include "options/Options.h"
#include "options/Rivals.h"

#include <filesystem>
#include <string>
#include <vector>

// The table of options as CLI11 has it: what people write, and what is written for them.

/// Take in the arguments of a command line, without the program's name, and note what they set. Return what is wrong
/// with them, in one line; empty when nothing is.
std::string parseArguments(const std::vector<std::string>& arguments, Options& options, SetWhere& where);

/// Take in a settings file: lines of NAME = VALUE, or of a switch's name alone; empty ones, and those that begin with
/// # or ;, say nothing. A line that is wrong changes nothing; of others it is noted what they set. Return what is
/// wrong, with file and line; a file that is not there is not.
std::vector<std::string> parseSettings(const std::filesystem::path& file, Options& options, SetWhere& where);

/// Return a settings file of all options as they are set, with their help.
std::string settingsText(const Options& options);

/// Return what --help shows.
std::string helpText();
