#include "replay/ViewerKeys.h"

#include <GLFW/glfw3.h>

bool ViewerKeys::wasPressed(int key)
{
    const bool isDown = keyboard.isDown(key);
    bool& before = wasDown[key];
    const bool pressed = isDown && !before;
    before = isDown;
    return pressed;
}

ViewerKeys::Wish ViewerKeys::next(bool flying)
{
    struct Row {
        int key;
        Wish wish, withShift;
    };
    constexpr Row kRows[] = {
        {GLFW_KEY_ESCAPE, Wish::Leave, Wish::Leave},
        {GLFW_KEY_SPACE, Wish::Pause, Wish::Pause},
        {GLFW_KEY_PERIOD, Wish::OnePass, Wish::OnePass},
        {GLFW_KEY_M, Wish::Mark, Wish::Mark},
        {GLFW_KEY_F12, Wish::Fly, Wish::Fly},
        {GLFW_KEY_F11, Wish::Land, Wish::Land},
        {GLFW_KEY_LEFT, Wish::Back, Wish::FarBack},
        {GLFW_KEY_RIGHT, Wish::Forward, Wish::FarForward},
    };
    for (const Row& row : kRows) {
        const bool steers = flying && (row.key == GLFW_KEY_LEFT || row.key == GLFW_KEY_RIGHT);
        if (steers || !wasPressed(row.key)) continue;
        const bool shift = keyboard.isDown(GLFW_KEY_LEFT_SHIFT) || keyboard.isDown(GLFW_KEY_RIGHT_SHIFT);
        return shift ? row.withShift : row.wish;
    }
    return Wish::Nothing;
}
