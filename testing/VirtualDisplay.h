#pragma once

#include "testing/ChildProcess.h"
#include "testing/Picture.h"
#include "testing/TemporaryFolder.h"

#include <initializer_list>
#include <string>

struct _XDisplay;

/// An X server of one's own that draws into memory (Xvfb), with the hands and eyes of a player: keys, and pictures of
/// one window.
///
/// Construct, start the game on getName(), wait until findWindow(), then the rest. There is no window manager: keys go
/// to the window under the pointer, which rests in the middle of the screen. Failures to start throw
/// std::runtime_error.
class VirtualDisplay {
public:
    /// A screen of that width, height and depth: the usual one holds the usual window at its place, (300, 30).
    explicit VirtualDisplay(const char* screen = "1400x900x24");
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    const std::string& getName() const { return displayName; } ///< for the variable DISPLAY

    /// Return true once a window of that title lies under the pointer; the other operations then mean that one.
    [[nodiscard]] bool findWindow(const std::string& title);

    /// Key names are those of the X headers: "k", "1", "Up", "Return", "Escape", "F1", "space".
    void press(std::initializer_list<std::string> keys) { sendKeys(keys, true); }
    void release(std::initializer_list<std::string> keys) { sendKeys(keys, false); }

    /// Ask the window to close, as the button in its title bar would.
    void closeWindow();

    /// Give the window another size, as a mouse at its corner would.
    void resizeWindow(int width, int height);

    /// Have keys go nowhere, as if another window had them, until the window takes them again.
    void takeKeysAway();

    Picture look() const { return look(window); }
    Picture look(const ScreenArea& region) const; ///< region of the window

private:
    void sendKeys(std::initializer_list<std::string> keys, bool down);

    TemporaryFolder folder;
    ChildProcess server;
    std::string displayName;
    _XDisplay* connection = nullptr;
    unsigned long windowId = 0;
    ScreenArea window; // the whole of it
};
