#include "platform/AppWindow.h"

#include "base/Logger.h"
#include "platform/WindowLibrary.h"

#include <GLFW/glfw3.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace {

constexpr int kDepthBits = 32;
constexpr int kX = 300, kY = 30; // of the window's upper-left corner, pixels from its monitor's

/// Return the monitor of that name; null when there is none.
GLFWmonitor* monitorNamed(const std::string& name)
{
    int count = 0;
    GLFWmonitor** const monitors = glfwGetMonitors(&count);
    GLFWmonitor** const end = monitors + count;
    GLFWmonitor** const found =
        std::find_if(monitors, end, [&](GLFWmonitor* monitor) { return name == glfwGetMonitorName(monitor); });
    return found == end ? nullptr : *found;
}

/// Have a window that fills the monitor leave the monitor's mode as it is.
void keepModeOf(const GLFWvidmode& mode)
{
    glfwWindowHint(GLFW_RED_BITS, mode.redBits);
    glfwWindowHint(GLFW_GREEN_BITS, mode.greenBits);
    glfwWindowHint(GLFW_BLUE_BITS, mode.blueBits);
    glfwWindowHint(GLFW_REFRESH_RATE, mode.refreshRate);
}

/// Return what is left of the usual distance to a monitor's edge, so that a window larger than usual fits.
int distanceFor(int usual, int usualSide, int side, int monitorSide)
{
    return side <= usualSide ? usual : std::clamp(monitorSide - side, 0, usual);
}

} // namespace

bool AppWindow::initialize()
{
    return startWindowLibrary();
}

bool AppWindow::open(const WindowOptions& asked, const char* title)
{
    options = asked;
    if (!options.monitor.empty() && !monitorNamed(options.monitor)) {
        logLine(1) << "There is no monitor " << options.monitor << "; the primary one is used" << std::endl;
        options.monitor.clear();
    }
    glfwWindowHint(GLFW_OPENGL_DEBUG_CONTEXT, GLFW_TRUE);
    glfwWindowHint(GLFW_CONTEXT_VERSION_MAJOR, 4);
    glfwWindowHint(GLFW_CONTEXT_VERSION_MINOR, 3);
    glfwWindowHint(GLFW_OPENGL_PROFILE, GLFW_OPENGL_CORE_PROFILE);
    glfwWindowHint(GLFW_DEPTH_BITS, kDepthBits);
    glfwWindowHint(GLFW_STENCIL_BITS, 0);
    glfwWindowHint(GLFW_RESIZABLE, options.resizable);
    glfwWindowHint(GLFW_AUTO_ICONIFY, GLFW_FALSE); // a full screen stays while somebody works on the next one
    windowed = usualPlacement();
    GLFWmonitor* const filled = options.fullscreen ? findMonitor() : nullptr;
    if (filled) {
        const GLFWvidmode& mode = *glfwGetVideoMode(filled);
        keepModeOf(mode);
        window = glfwCreateWindow(mode.width, mode.height, title, filled, nullptr);
    } else {
        window = glfwCreateWindow(windowed.width, windowed.height, title, nullptr, nullptr);
    }
    if (!window) return false;

    glfwMakeContextCurrent(window);
    glfwSwapInterval(options.vsync ? 1 : 0);
    if (!filled) glfwSetWindowPos(window, windowed.x, windowed.y);
    glfwSetWindowUserPointer(window, this);
    followFramebuffer();
    glfwSetInputMode(window, GLFW_STICKY_KEYS, GLFW_TRUE);
    FrameTimer::getInstance()->setClock(this);
    setKeyboard(this);
    return true;
}

/// Return the monitor that the options name, or else the primary one; null where there is none.
GLFWmonitor* AppWindow::findMonitor() const
{
    GLFWmonitor* const named = monitorNamed(options.monitor);
    return named ? named : glfwGetPrimaryMonitor();
}

/// Return where the window lies while it does not fill its monitor. What is larger than usual moves towards the corner.
AppWindow::Placement AppWindow::usualPlacement() const
{
    constexpr WindowSize kUsual;
    const WindowSize size = options.size;
    Placement placement{kX, kY, size.width, size.height};
    GLFWmonitor* const monitor = findMonitor();
    if (!monitor) return placement;
    int x = 0, y = 0;
    if (!options.monitor.empty()) glfwGetMonitorPos(monitor, &x, &y);
    const GLFWvidmode& mode = *glfwGetVideoMode(monitor);
    placement.x = x + distanceFor(kX, kUsual.width, size.width, mode.width);
    placement.y = y + distanceFor(kY, kUsual.height, size.height, mode.height);
    return placement;
}

void AppWindow::followFramebuffer()
{
    glfwSetFramebufferSizeCallback(window, [](GLFWwindow* of, int width, int height) {
        static_cast<AppWindow*>(glfwGetWindowUserPointer(of))->setFramebufferSize(width, height);
    });
    int width = 0, height = 0;
    glfwGetFramebufferSize(window, &width, &height);
    setFramebufferSize(width, height);
}

void AppWindow::setFramebufferSize(int width, int height)
{
    const bool isShown = width > 0 && height > 0; // some desktops make it nothing while it is put away
    if (isShown) framebuffer = {std::min(width, longestSide), std::min(height, longestSide)};
}

void AppWindow::limitTo(int side)
{
    longestSide = side;
    int width = 0, height = 0;
    glfwGetWindowSize(window, &width, &height);
    const int across = longestSide * width / std::max(framebuffer.width, 1);
    const int down = longestSide * height / std::max(framebuffer.height, 1);
    glfwSetWindowSizeLimits(window, kLeastWindow.width, kLeastWindow.height, across, down);
    if (width <= across && height <= down) return;
    logLine(1) << "The window is " << width << "x" << height << ", but the driver draws no more than " << across << "x"
               << down << std::endl;
    glfwSetWindowSize(window, std::min(width, across), std::min(height, down));
    setFramebufferSize(framebuffer.width, framebuffer.height);
}

void AppWindow::toggleFullscreen()
{
    if (!window) return;
    if (glfwGetWindowMonitor(window)) {
        glfwSetWindowMonitor(window, nullptr, windowed.x, windowed.y, windowed.width, windowed.height, GLFW_DONT_CARE);
    } else if (GLFWmonitor* const monitor = findMonitor()) {
        glfwGetWindowPos(window, &windowed.x, &windowed.y);
        glfwGetWindowSize(window, &windowed.width, &windowed.height);
        const GLFWvidmode& mode = *glfwGetVideoMode(monitor);
        glfwSetWindowMonitor(window, monitor, 0, 0, mode.width, mode.height, mode.refreshRate);
    }
    glfwSwapInterval(options.vsync ? 1 : 0); // some drivers forget it
}

void AppWindow::watchFocus(std::function<void(bool)> changed)
{
    focusChanged = std::move(changed);
    glfwSetWindowFocusCallback(window, [](GLFWwindow* of, int focused) {
        static_cast<AppWindow*>(glfwGetWindowUserPointer(of))->focusChanged(focused == GLFW_TRUE);
    });
    focusChanged(glfwGetWindowAttrib(window, GLFW_FOCUSED) == GLFW_TRUE);
}

bool AppWindow::isOpen() const
{
    return window && !glfwWindowShouldClose(window);
}

void AppWindow::swapBuffers()
{
    if (!window) return;
    glfwSwapBuffers(window);
    glfwPollEvents();
}

void AppWindow::terminate()
{
    if (window) {
        FrameTimer::getInstance()->setClock(nullptr);
        setKeyboard(nullptr);
        window = nullptr;
    }
    glfwTerminate();
}

bool AppWindow::hasContext()
{
    return glfwGetCurrentContext() != nullptr;
}

void AppWindow::captureCursor(bool captured)
{
    if (window) glfwSetInputMode(window, GLFW_CURSOR, captured ? GLFW_CURSOR_DISABLED : GLFW_CURSOR_NORMAL);
}

AppWindow::Position AppWindow::mousePosition() const
{
    if (!window) return {};
    double x = 0, y = 0;
    glfwGetCursorPos(window, &x, &y);
    return {static_cast<int>(x), static_cast<int>(y)};
}

double AppWindow::now()
{
    return glfwGetTime();
}

void AppWindow::sleep(double seconds)
{
    if (seconds > 0) std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

bool AppWindow::isDown(int key)
{
    return window && glfwGetKey(window, key) == GLFW_PRESS;
}

void AppWindow::poll()
{
    if (window) glfwPollEvents();
}
