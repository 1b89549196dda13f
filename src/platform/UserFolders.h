#pragma once

#include <filesystem>
#include <string>

/// The folders of the XDG base directory specification that programs keep a user's files in.
enum class UserFolder {
    Settings, ///< $XDG_CONFIG_HOME, or ~/.config
    State,    ///< $XDG_STATE_HOME, or ~/.local/state: logs
};

/// Return where the game's own file of that name belongs; empty when the user has neither the folder nor a home.
/// Nothing is made.
std::filesystem::path userFile(UserFolder folder, const std::string& name);

/// Return the folder of the user's pictures, as the desktop has it (xdg-user-dirs), or else ~/Pictures. Nothing is
/// made.
std::filesystem::path picturesFolder();
