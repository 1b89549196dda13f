#pragma once

#include <cstddef>
#include <cstdlib>
#include <vector>

/// A rectangle of a picture, in pixels from its upper-left corner.
struct ScreenArea {
    int x = 0, y = 0, width = 0, height = 0;
};

/// What the game's window shows: 8-bit red, green, blue, rows from the top down.
struct Picture {
    int width = 0, height = 0;
    std::vector<unsigned char> pixels;
};

/// Return the share (0 to 1) of pixels that differ visibly between two pictures of the same size.
inline double changedShare(const Picture& before, const Picture& after)
{
    constexpr int kVisibleStep = 10; // of 255, in any component
    int changed = 0;
    for (std::size_t i = 0; i < after.pixels.size(); i += 3) {
        const auto differs = [&](std::size_t at) {
            return std::abs(before.pixels[at] - after.pixels[at]) > kVisibleStep;
        };
        changed += differs(i) || differs(i + 1) || differs(i + 2);
    }
    return 3.0 * changed / static_cast<double>(after.pixels.size());
}
