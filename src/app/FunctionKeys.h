#pragma once

#include <cstddef>
#include <functional>
#include <vector>

/// The game's debug switches on F1 to F12, and other keys: which key does what, once a press or as long as it is held.
/// bind() at the start, then update() once a drawn frame. Actions run in the order in which they were bound.
class FunctionKeys {
public:
    enum class When {
        kPressed, ///< down now and not in the previous frame
        kHeld,    ///< in every frame in which it is down
    };

    FunctionKeys();

    /// Have a function key, number 1 to 12, do something.
    void bind(int number, When when, std::function<void()> action);

    /// Have any key, by GLFW 3 key code, do something once a press. Nothing, for kNoKey.
    void bindKey(int key, std::function<void()> action);

    /// Read the keys, run what is due, and remember the keys for the next frame.
    void update();

private:
    static constexpr int kKeyCount = 12;

    struct Key {
        int code; // GLFW's
        bool isDown = false;
        bool wasDown = false; // at the end of the pass before
    };

    struct Binding {
        std::size_t key; // its place among the keys
        When when;
        std::function<void()> action;
    };

    std::vector<Key> keys; // F1 to F12 first, whether they are bound or not
    std::vector<Binding> bindings;
};
