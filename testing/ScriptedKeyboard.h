#pragma once

#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

#include <algorithm>
#include <initializer_list>
#include <map>

/// A keyboard whose keys a test presses, with the sticky keys of the real one: a key that was released reads as down
/// once more, so that a tap shorter than a pass is not lost. In place of the program's for as long as it lives.
class ScriptedKeyboard : public IKeyboard {
public:
    ScriptedKeyboard() { setKeyboard(this); }
    ~ScriptedKeyboard() override { setKeyboard(nullptr); }
    ScriptedKeyboard(const ScriptedKeyboard&) = delete;
    ScriptedKeyboard& operator=(const ScriptedKeyboard&) = delete;

    /// Hold exactly these keys from now on, and let go of the others.
    void hold(std::initializer_list<int> keys)
    {
        for (auto& [key, state] : states) {
            const bool isHeld = std::find(keys.begin(), keys.end(), key) != keys.end();
            if (state == State::kDown && !isHeld) state = State::kSticking;
        }
        for (const int key : keys) states[key] = State::kDown;
    }

    /// Press and release a key between two passes.
    void tap(int key) { states[key] = State::kSticking; }

    /// Let go of every key, and forget what sticks.
    void reset() { states.clear(); }

    bool isDown(int key) override
    {
        State& state = states[key];
        const bool down = state != State::kUp;
        if (state == State::kSticking) state = State::kUp;
        return down;
    }
    void poll() override { ++polls; }

    int polls = 0;

private:
    enum class State {
        kUp,
        kDown,
        kSticking, ///< released, and not read since
    };
    std::map<int, State> states;
};
