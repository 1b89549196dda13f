#pragma once

/// The state of the keys, by GLFW 3 key code. The game's window provides it; tests and benchmarks put a scripted one in
/// its place.
class IKeyboard {
public:
    virtual ~IKeyboard() = default;

    virtual bool isDown(int key) = 0;

    /// Take in the key events that came since the last call.
    virtual void poll() = 0;
};

/// Return the keyboard in use. Until a window is opened (or a test sets one) it is one on which no key is ever down.
IKeyboard& keyboard();

/// Use this keyboard, borrowed, from now on. Null stands for the one without keys.
void setKeyboard(IKeyboard* newKeyboard);

/// Return keyboard().isDown(key).
bool isKeyDown(int key);
