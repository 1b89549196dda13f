#include "testing/VirtualDisplay.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

#include <charconv>
#include <span>
#include <sstream>
#include <stdexcept>

namespace {

constexpr const char* kScreen = "1400x900x24"; // pixels and depth: holds the whole window at its place, (300, 30)
constexpr double kServerSeconds = 30;

/// A window may vanish between two requests about it; the library's own handler would end the test program.
int ignoreError(Display*, XErrorEvent*)
{
    return 0;
}

/// The server prints the number of the free display that it took on a line of its own, among remarks about those that
/// were taken. -1 until it has.
int displayNumber(const ChildProcess& server)
{
    std::istringstream lines(server.output());
    for (std::string line; std::getline(lines, line) && !lines.eof();) {
        int number = -1;
        const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
        if (error == std::errc() && end == line.data() + line.size()) return number;
    }
    return -1;
}

} // namespace

VirtualDisplay::VirtualDisplay(const std::filesystem::path& outputFolder)
{
    server = std::make_unique<ChildProcess>(ChildProcess::Settings{
        {"Xvfb", "-displayfd", "1", "-screen", "0", kScreen, "-nolisten", "tcp", "-noreset"}, {}, {},
        outputFolder / "xvfb.txt"});
    waitUntil(kServerSeconds, [this] { return displayNumber(*server) >= 0 || !server->isRunning(); });
    displayName = ":" + std::to_string(displayNumber(*server));

    XSetErrorHandler(ignoreError);
    connection = XOpenDisplay(displayName.c_str());
    if (!connection) throw std::runtime_error("no virtual display: " + server->output());
}

VirtualDisplay::~VirtualDisplay()
{
    XCloseDisplay(connection);
}

bool VirtualDisplay::waitForWindow(const std::string& title, double seconds)
{
    return waitUntil(seconds, [&] { return findWindow(title); });
}

bool VirtualDisplay::findWindow(const std::string& title)
{
    Window root = 0, parent = 0, *found = nullptr;
    unsigned count = 0;
    if (!XQueryTree(connection, DefaultRootWindow(connection), &root, &parent, &found, &count)) return false;
    windowId = 0;
    for (Window candidate : std::span(found, count)) {
        XWindowAttributes attributes{};
        char* name = nullptr;
        if (!XFetchName(connection, candidate, &name)) continue;
        if (title == name && XGetWindowAttributes(connection, candidate, &attributes) &&
            attributes.map_state == IsViewable) {
            windowId = candidate;
            window = {attributes.x, attributes.y, attributes.width, attributes.height};
        }
        XFree(name);
    }
    if (found) XFree(found);
    if (!windowId) return false;
    XWarpPointer(connection, 0, root, 0, 0, 0, 0, window.x + window.width / 2, window.y + window.height / 2);
    XFlush(connection);
    return true;
}

void VirtualDisplay::pressKey(const std::string& key)
{
    sendKey(key, true);
}

void VirtualDisplay::releaseKey(const std::string& key)
{
    sendKey(key, false);
}

void VirtualDisplay::sendKey(const std::string& key, bool down)
{
    const KeyCode code = XKeysymToKeycode(connection, XStringToKeysym(key.c_str()));
    if (code == 0) throw std::runtime_error("no such key: " + key);
    XTestFakeKeyEvent(connection, code, down, CurrentTime);
    XFlush(connection);
}

void VirtualDisplay::closeWindow()
{
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = windowId;
    event.xclient.message_type = XInternAtom(connection, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(connection, "WM_DELETE_WINDOW", False));
    XSendEvent(connection, windowId, False, NoEventMask, &event);
    XFlush(connection);
}

Picture VirtualDisplay::lookAt(const ScreenArea& region) const
{
    XImage* image = XGetImage(connection, DefaultRootWindow(connection), window.x + region.x, window.y + region.y,
        static_cast<unsigned>(region.width), static_cast<unsigned>(region.height), AllPlanes, ZPixmap);
    if (!image || image->bits_per_pixel != 32)
        throw std::runtime_error("the window does not lie whole on the virtual screen");

    Picture picture{region.width, region.height, {}};
    picture.pixels.reserve(3 * static_cast<std::size_t>(region.width) * static_cast<std::size_t>(region.height));
    for (int y = 0; y < region.height; ++y) {
        const char* row = image->data + static_cast<std::ptrdiff_t>(y) * image->bytes_per_line;
        for (int x = 0; x < region.width; ++x) { // blue, green, red, unused
            for (int component : {2, 1, 0})
                picture.pixels.push_back(static_cast<unsigned char>(row[4 * x + component]));
        }
    }
    XDestroyImage(image);
    return picture;
}
