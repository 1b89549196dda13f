#pragma once

#include "platform/Keyboard.h"

#include <map>

/// What the viewer of a replay wants, by the window's own keys.
class ViewerKeys {
public:
    enum class Wish { Nothing, Pause, OnePass, Mark, Back, Forward, FarBack, FarForward, Fly, Land, Leave };

    explicit ViewerKeys(IKeyboard& ownKeyboard) : keyboard(ownKeyboard) {} ///< borrowed

    /// Return a key that went down since the last call; call it until there is nothing. While flying the arrow keys
    /// steer.
    Wish next(bool flying);

private:
    bool wasPressed(int key);

    IKeyboard& keyboard;
    std::map<int, bool> wasDown;
};
