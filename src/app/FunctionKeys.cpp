#include "app/FunctionKeys.h"

#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

#include <cstddef>
#include <utility>

void FunctionKeys::bind(int number, When when, std::function<void()> action)
{
    bindings.push_back({number, when, std::move(action)});
}

std::array<bool, FunctionKeys::kKeyCount> FunctionKeys::readKeys()
{
    std::array<bool, kKeyCount> isDown;
    for (int i = 0; i < kKeyCount; ++i) isDown[static_cast<std::size_t>(i)] = isKeyDown(GLFW_KEY_F1 + i);
    return isDown;
}

void FunctionKeys::update()
{
    const std::array<bool, kKeyCount> isDown = readKeys();
    for (const Binding& binding : bindings) {
        const auto key = static_cast<std::size_t>(binding.number - 1);
        const bool due = isDown[key] && (binding.when == When::kHeld || !keyWasDown[key]);
        if (due) binding.action();
    }

    // A second reading: a tap that was over before the first one no longer counts as down, so that the next tap is a
    // press again even when it comes in the very next pass.
    keyWasDown = readKeys();
}
