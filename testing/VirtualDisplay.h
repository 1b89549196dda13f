#pragma once

#include "testing/ChildProcess.h"
#include "testing/Picture.h"

#include <memory>
#include <string>

struct _XDisplay;

/// An X server of one's own that draws into memory (Xvfb), with the hands and eyes of a player: keys, and pictures of
/// one window.
///
/// Construct, start the game on name(), waitForWindow(), then the rest. There is no window manager: keys go to the
/// window under the pointer, which waitForWindow() places. Failures to start throw std::runtime_error.
class VirtualDisplay {
public:
    explicit VirtualDisplay(const std::filesystem::path& outputFolder); ///< the folder takes the server's messages
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    const std::string& name() const { return displayName; } ///< for the variable DISPLAY

    /// True once a window of that title is on the screen; it is then the one that the other operations mean.
    bool waitForWindow(const std::string& title, double seconds);

    /// Key names are those of the X headers: "k", "1", "Up", "Return", "Escape", "F1", "space".
    void pressKey(const std::string& key);
    void releaseKey(const std::string& key);

    /// Asks the window to close, as the button in its title bar would.
    void closeWindow();

    Picture look() const { return lookAt({0, 0, window.width, window.height}); }
    Picture lookAt(const ScreenArea& region) const; ///< region of the window

private:
    bool findWindow(const std::string& title);
    void sendKey(const std::string& key, bool down);

    std::string displayName;
    std::unique_ptr<ChildProcess> server;
    _XDisplay* connection = nullptr;
    unsigned long windowId = 0;
    ScreenArea window;
};
