#pragma once

/// The state of the keys, by GLFW 3 key code. The game's window provides it; tests and benchmarks put a scripted one in
/// its place.
class IKeyboard {
public:
    virtual ~IKeyboard() = default;

    virtual bool isDown(int key) = 0;

    /// Takes in the key events that came since the last call.
    virtual void poll() = 0;
};

/// The keyboard in use; never null. Until a window is opened (or a test sets one) it is one on which no key is ever
/// down.
IKeyboard& keyboard();

/// Borrowed; it must outlive its use. Null goes back to the keyboard without keys.
void setKeyboard(IKeyboard* newKeyboard);

/// Shorthand of keyboard().isDown.
bool isKeyDown(int key);
