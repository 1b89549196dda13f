#pragma once

#include "base/FrameTimer.h"
#include "platform/Keyboard.h"

#include <functional>

struct GLFWwindow;

/// The application's one window with its OpenGL 4.3 core debug context, by GLFW 3; also the program's clock and
/// keyboard.
///
/// Owned by the renderer: initialize(), then open(), then swapBuffers() once a frame while isOpen(), then terminate().
/// GLFW 3 polls no events in its swap as 2.7 did, so swapBuffers() does. All on the main thread.
class AppWindow : public IClock, public IKeyboard {
public:
    /// Start the window library. Return false when it cannot start (no display).
    bool initialize();

    /// Open the window, make its context current, and put the window's clock and keyboard in place of the defaults.
    /// Return false when no OpenGL 4.3 core context can be had.
    bool open(int width, int height, const char* title);

    /// Switch vertical synchronisation off, and put the open window's upper-left corner there on the screen.
    void place(int x, int y);

    /// Call this with whether the window has the keys: now, and whenever that changes. From open() on.
    void watchFocus(std::function<void(bool)> changed);

    bool isOpen() const;
    void swapBuffers(); ///< show the picture drawn, and take in the events that came meanwhile

    /// Close the window and the window library, and with it the context; harmless when nothing is open.
    void terminate();

    /// Return whether there is an OpenGL context to call into, of whatever window.
    static bool hasContext();

    /// Hide and capture the mouse cursor, or release it.
    void captureCursor(bool captured);

    struct Position {
        int x = 0, y = 0;
    };
    Position mousePosition() const; ///< pixels from the window's upper-left corner, truncated

    double now() override;               ///< seconds since initialize()
    void sleep(double seconds) override; ///< return at once for zero and negative values
    bool isDown(int key) override;
    void poll() override;

private:
    GLFWwindow* window = nullptr;
    std::function<void(bool)> focusChanged;
};
