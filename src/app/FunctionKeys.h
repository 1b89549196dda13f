#pragma once

#include <array>
#include <functional>
#include <vector>

/// The game's debug switches on F1 to F12: which key does what, once a press or as long as it is held. bind() at the
/// start, then update() once a drawn frame. Actions run in the order in which they were bound.
class FunctionKeys {
public:
    enum class When {
        kPressed, ///< down now and not in the previous frame
        kHeld,    ///< in every frame in which it is down
    };

    /// Have a key, number 1 to 12, do something.
    void bind(int number, When when, std::function<void()> action);

    /// Read the twelve keys, run what is due, and remember the keys for the next frame.
    void update();

private:
    static constexpr int kKeyCount = 12;

    struct Binding {
        int number;
        When when;
        std::function<void()> action;
    };

    static std::array<bool, kKeyCount> readKeys();

    std::vector<Binding> bindings;
    std::array<bool, kKeyCount> keyWasDown{}; // at the end of the pass before; F1 first
};
