#pragma once

#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

#include <initializer_list>
#include <set>

/// A keyboard whose keys a test presses, with the sticky keys of the real one: a key that was released reads as down
/// once more, so that a tap shorter than a pass is not lost. In place of the program's for as long as it lives.
class ScriptedKeyboard : public IKeyboard {
public:
    ScriptedKeyboard() { setKeyboard(this); }
    ~ScriptedKeyboard() override { setKeyboard(nullptr); }

    /// Hold exactly these keys from now on, and let go of the others.
    void hold(std::initializer_list<int> keys)
    {
        sticking.merge(held);
        held = keys;
    }

    /// Press and release a key between two passes.
    void tap(int key) { sticking.insert(key); }

    /// Let go of every key, and forget what sticks.
    void reset() { sticking = held = {}; }

    bool isDown(int key) override { return held.contains(key) || sticking.erase(key) > 0; }
    void poll() override { ++polls; }

    int polls = 0;

private:
    std::set<int> held, sticking; // sticking: also what is held and was released before
};
