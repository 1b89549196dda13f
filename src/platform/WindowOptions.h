#pragma once

#include <string>

/// How large a window is, without what the desktop puts around it.
struct WindowSize {
    int width = 1024, height = 768; ///< pixels, or the desktop's units where it scales

    bool operator==(const WindowSize&) const = default;
};

constexpr WindowSize kLeastWindow{320, 240};

/// How the window opens.
struct WindowOptions {
    WindowSize size = {}; ///< while it does not fill its monitor
    bool fullscreen = false;
    std::string monitor = {}; ///< as monitorNames() has it; empty for the primary one
    bool resizable = false;   ///< by the player, with the mouse
    bool vsync = false;       ///< frames wait for the monitor
};
