#include "platform/AppWindow.h"

#include "platform/WindowLibrary.h"

#include <GLFW/glfw3.h>

#include <chrono>
#include <thread>

namespace {
constexpr int kDepthBits = 32;
}

bool AppWindow::initialize()
{
    return startWindowLibrary();
}

bool AppWindow::open(int width, int height, const char* title)
{
    glfwWindowHint(GLFW_OPENGL_DEBUG_CONTEXT, GLFW_TRUE);
    glfwWindowHint(GLFW_CONTEXT_VERSION_MAJOR, 4);
    glfwWindowHint(GLFW_CONTEXT_VERSION_MINOR, 3);
    glfwWindowHint(GLFW_OPENGL_PROFILE, GLFW_OPENGL_CORE_PROFILE);
    glfwWindowHint(GLFW_DEPTH_BITS, kDepthBits);
    glfwWindowHint(GLFW_STENCIL_BITS, 0);
    glfwWindowHint(GLFW_RESIZABLE, GLFW_FALSE); // the off-screen targets have the size that the window opens with
    window = glfwCreateWindow(width, height, title, nullptr, nullptr);
    if (!window) return false;

    glfwMakeContextCurrent(window);
    glfwSetInputMode(window, GLFW_STICKY_KEYS, GLFW_TRUE);
    FrameTimer::getInstance()->setClock(this);
    setKeyboard(this);
    return true;
}

void AppWindow::place(int x, int y)
{
    glfwSwapInterval(0);
    glfwSetWindowPos(window, x, y);
}

void AppWindow::watchFocus(std::function<void(bool)> changed)
{
    focusChanged = std::move(changed);
    glfwSetWindowUserPointer(window, this);
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
