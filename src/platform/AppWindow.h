#pragma once

#include "base/FrameTimer.h"
#include "platform/Keyboard.h"
#include "platform/WindowOptions.h"

#include <functional>
#include <limits>

struct GLFWmonitor;
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

    /// Open the window, make its context current, and put the window's clock and keyboard in place of the defaults. A
    /// monitor that is not there is named in the log, and the primary one taken. Return false when no OpenGL 4.3 core
    /// context can be had.
    bool open(const WindowOptions& options, const char* title);

    /// Keep the window's sides within what can be drawn, in pixels: it shrinks if it must, with a line in the log, and
    /// grows no further. From open() on.
    void limitTo(int side);

    /// Fill the monitor that the options name with the window, as it is set, or give the window back the size and the
    /// place that it had. The framebuffer has its new size a little later.
    void toggleFullscreen();

    struct Pixels {
        int width = 0, height = 0;
    };
    Pixels framebufferSize() const { return framebuffer; } ///< as of the last events; more than the window's on some

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
    struct Placement {
        int x = 0, y = 0, width = 0, height = 0; // of the window on the screen
    };

    GLFWmonitor* findMonitor() const;
    Placement usualPlacement() const;
    void followFramebuffer();
    void setFramebufferSize(int width, int height);

    WindowOptions options;
    GLFWwindow* window = nullptr;
    Placement windowed; // while it fills the monitor: to be gone back to
    Pixels framebuffer;
    int longestSide = std::numeric_limits<int>::max(); // that can be drawn, pixels
    std::function<void(bool)> focusChanged;
};
