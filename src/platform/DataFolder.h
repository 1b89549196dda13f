#pragma once

#include <filesystem>

/// Return whether a folder holds the game's data, by two of the four folders Shader/, Textures/, Models/ and Audio/.
bool holdsData(const std::filesystem::path& folder);

/// Return the folder that the game's data are in, as an absolute path: the one that is given; or the working directory,
/// the share folder beside an installed program, the source tree of a build, whichever comes first to hold them. Empty
/// when none does.
std::filesystem::path findDataFolder(const std::filesystem::path& given = {});

/// Make that folder the working directory. Return false, with one log line at level 0, when there is none.
bool enterDataFolder(const std::filesystem::path& given = {});
