#pragma once

#include <string>

/// What is to be recorded or told again, and how.
struct ReplayOptions {
    std::string record; ///< an absolute path, empty for none, or "auto" for the user's own files
    std::string replay; ///< an absolute path; empty: play
    bool headless = false;
    int passes = 7200;    ///< without a window and a recording: how many
    int speed = 1;        ///< times as fast as it was
    std::string pictures; ///< a folder, as an absolute path, for a picture of each pass; empty for none
};
