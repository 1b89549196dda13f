#pragma once

#include "base/FrameTimer.h"
#include "platform/Keyboard.h"

struct GLFWwindow;

/// The application's one window with its OpenGL 4.3 core debug context, by GLFW 3; also the program's clock and
/// keyboard.
///
/// Owned by the renderer: initialize(), then open(), then swapBuffers() once a frame while isOpen(), then terminate().
/// GLFW 3 polls no events in its swap as 2.7 did, so swapBuffers() does. All on the main thread.
class AppWindow : public IClock, public IKeyboard {
public:
    /// Starts the window library. False when it cannot (no display).
    bool initialize();

    /// Opens the window, makes its context current, and puts the window's clock and keyboard in place of the defaults.
    /// False when no OpenGL 4.3 core context can be had.
    bool open(int width, int height, const char* title);

    /// The entry points' loader wants this after open(): vertical synchronisation off, position on the screen.
    void place(int x, int y);

    bool isOpen() const;
    void swapBuffers();

    /// Closes the window and the window library, and with it the context; harmless when nothing is open.
    void terminate();

    /// Whether there is an OpenGL context to call into, of whatever window.
    static bool hasContext();

    /// Hides and captures the mouse cursor, or releases it.
    void captureCursor(bool captured);

    struct Position {
        int x = 0, y = 0;
    };
    Position mousePosition() const; ///< pixels from the window's upper-left corner, truncated

    double now() override;               ///< seconds since initialize()
    void sleep(double seconds) override; ///< returns at once for zero and negative values
    bool isDown(int key) override;
    void poll() override;

private:
    GLFWwindow* window = nullptr;
};
