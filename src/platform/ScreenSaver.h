#pragma once

#include <memory>

struct ScreenSaverOptions {
    bool keepAwake = false; ///< no blanking while a match runs
};

/// What blanks the screen when mouse and keys rest for a while, though people play with pads. Main thread only. This
/// one is left as it is.
class ScreenSaver {
public:
    virtual ~ScreenSaver() = default;

    virtual void inhibit() {} ///< ask for no blanking until release(); returns at once
    virtual void release() {} ///< let it blank again; nothing without an inhibit() before
    virtual void update() {}  ///< once a frame in between: take in answers; each is one line in the log
};

/// Return the desktop's own, reached by the session bus, if it is to be kept from blanking; else one that is left
/// alone.
std::unique_ptr<ScreenSaver> makeScreenSaver(const ScreenSaverOptions& options);
