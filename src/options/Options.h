#pragma once

#include "app/GameOptions.h"
#include "replay/ReplayOptions.h"

#include <string>

/// What the program is asked to do.
enum class Request { Play, Help, Version, ListDevices, WriteSettings, PrintManual, PrintCompletion };

/// What the program itself has to know before there is a game.
struct ProgramOptions {
    Request request = Request::Play;
    std::string config;     ///< the settings file; empty: the user's own
    std::string dataFolder; ///< an absolute path; empty: it is looked for
    std::string logFile;    ///< an absolute path, empty for none, or "auto" for the user's own
};

/// Everything that can be set, with its defaults. Made once, by readOptions(); each part goes to the module whose it is
/// when that is constructed.
struct Options : GameOptions {
    ProgramOptions program;
    ReplayOptions replay;
};
