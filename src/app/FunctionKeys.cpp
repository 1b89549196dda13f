#include "app/FunctionKeys.h"

#include "platform/KeyWords.h"
#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

#include <utility>

FunctionKeys::FunctionKeys()
{
    keys.reserve(kKeyCount);
    for (int i = 0; i < kKeyCount; ++i) keys.push_back({GLFW_KEY_F1 + i});
}

void FunctionKeys::bind(int number, When when, std::function<void()> action)
{
    bindings.push_back({static_cast<std::size_t>(number - 1), when, std::move(action)});
}

void FunctionKeys::bindKey(int key, std::function<void()> action)
{
    if (key == kNoKey) return;
    bindings.push_back({keys.size(), When::kPressed, std::move(action)});
    keys.push_back({key});
}

void FunctionKeys::update()
{
    for (Key& key : keys) key.isDown = isKeyDown(key.code);
    for (const Binding& binding : bindings) {
        const Key& key = keys[binding.key];
        const bool due = key.isDown && (binding.when == When::kHeld || !key.wasDown);
        if (due) binding.action();
    }

    // A second reading: a tap that was over before the first one no longer counts as down, so that the next tap is a
    // press again even when it comes in the very next pass.
    for (Key& key : keys) key.wasDown = isKeyDown(key.code);
}
