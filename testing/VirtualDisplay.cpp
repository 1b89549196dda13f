#include "testing/VirtualDisplay.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

#include <regex>
#include <stdexcept>

namespace {

/// A window may vanish between two requests about it; the library's own handler would end the test program.
int ignoreError(Display*, XErrorEvent*)
{
    return 0;
}

} // namespace

VirtualDisplay::VirtualDisplay(const char* screen)
    : server({.command = {"Xvfb", "-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp", "-noreset"},
          .output = folder.path() / "xvfb.txt"})
{
    server.waitFor("a virtual display", [this] {
        // Remarks about displays that are taken, and the number of the free one.
        const std::string printed = server.output();
        std::smatch line;
        if (!std::regex_search(printed, line, std::regex("(^|\n)([0-9]+)\n"))) return false;
        displayName = ":" + line.str(2);
        return true;
    });
    XSetErrorHandler(ignoreError);
    connection = XOpenDisplay(displayName.c_str());
    if (!connection) throw std::runtime_error("no virtual display: " + server.output());
}

VirtualDisplay::~VirtualDisplay()
{
    XCloseDisplay(connection);
}

bool VirtualDisplay::findWindow(const std::string& title)
{
    Window root = 0;
    int x = 0, y = 0;
    unsigned mask = 0;
    XQueryPointer(connection, DefaultRootWindow(connection), &root, &windowId, &x, &y, &x, &y, &mask);
    XWindowAttributes attributes{};
    char* name = nullptr;
    const bool isFound = windowId && XFetchName(connection, windowId, &name) && title == name &&
        XGetWindowAttributes(connection, windowId, &attributes);
    window = {0, 0, attributes.width, attributes.height};
    if (name) XFree(name);
    return isFound;
}

void VirtualDisplay::sendKeys(std::initializer_list<std::string> keys, bool down)
{
    for (const std::string& key : keys) {
        const KeyCode code = XKeysymToKeycode(connection, XStringToKeysym(key.c_str()));
        if (!code) throw std::runtime_error("no such key: " + key);
        XTestFakeKeyEvent(connection, code, down, CurrentTime);
    }
    XFlush(connection);
}

void VirtualDisplay::closeWindow()
{
    const Atom protocols = XInternAtom(connection, "WM_PROTOCOLS", False);
    XEvent event{};
    event.xclient = {ClientMessage, 0, False, connection, windowId, protocols, 32, {}};
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(connection, "WM_DELETE_WINDOW", False));
    XSendEvent(connection, windowId, False, NoEventMask, &event);
    XFlush(connection);
}

void VirtualDisplay::resizeWindow(int width, int height)
{
    XResizeWindow(connection, windowId, static_cast<unsigned>(width), static_cast<unsigned>(height));
    XFlush(connection);
}

void VirtualDisplay::takeKeysAway()
{
    XSetInputFocus(connection, None, RevertToNone, CurrentTime);
    XFlush(connection);
}

Picture VirtualDisplay::look(const ScreenArea& region) const
{
    XImage* image = XGetImage(connection, windowId, region.x, region.y, static_cast<unsigned>(region.width),
        static_cast<unsigned>(region.height), AllPlanes, ZPixmap);
    if (!image) throw std::runtime_error("the window is gone, or does not lie whole on the virtual screen");
    Picture picture{region.width, region.height, {}};
    for (int i = 0; i < region.width * region.height; ++i) {
        const unsigned long pixel = XGetPixel(image, i % region.width, i / region.width); // 0xRRGGBB
        for (const int shift : {16, 8, 0}) picture.pixels.push_back(static_cast<unsigned char>(pixel >> shift));
    }
    XDestroyImage(image);
    return picture;
}
