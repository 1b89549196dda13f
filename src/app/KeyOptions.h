#pragma once

#include <string>

/// The game's own keys that people choose, by their words (see platform/KeyWords). Empty: there is none.
struct KeyOptions {
    std::string screenshot;
    std::string fullscreen;
    std::string mark; ///< for a moment of a recording
};
