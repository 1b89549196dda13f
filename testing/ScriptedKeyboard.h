#pragma once

#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

#include <initializer_list>
#include <set>

/// A keyboard whose keys a test holds down; in place of the program's for as long as it lives.
class ScriptedKeyboard : public IKeyboard {
public:
    ScriptedKeyboard() { setKeyboard(this); }
    ~ScriptedKeyboard() override { setKeyboard(nullptr); }
    ScriptedKeyboard(const ScriptedKeyboard&) = delete;
    ScriptedKeyboard& operator=(const ScriptedKeyboard&) = delete;

    /// Exactly these keys are down from now on.
    void hold(std::initializer_list<int> keys) { held = keys; }

    bool isDown(int key) override { return held.count(key) != 0; }
    void poll() override { ++polls; }

    int polls = 0;

private:
    std::set<int> held;
};
