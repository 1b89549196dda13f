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

    ScreenArea whole() const { return {0, 0, width, height}; }
    const unsigned char* at(int x, int y) const
    {
        return pixels.data() +
            3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x));
    }
};

/// Return the share (0 to 1) of a region's pixels that differ visibly from what `other` returns for their x and y.
template <class Other>
double differingShare(const Picture& picture, const ScreenArea& region, const Other& other)
{
    constexpr int kVisibleStep = 10; // of 255, in any component
    const int size = region.width * region.height;
    int hits = 0;
    for (int i = 0; i < size; ++i) {
        const int x = region.x + i % region.width, y = region.y + i / region.width;
        const unsigned char *a = picture.at(x, y), *b = other(x, y);
        const auto differs = [&](int part) { return std::abs(a[part] - b[part]) > kVisibleStep; };
        hits += differs(0) || differs(1) || differs(2);
    }
    return static_cast<double>(hits) / size;
}

/// The share of pixels that differ between two pictures of the same size.
inline double changedShare(const Picture& before, const Picture& after, const ScreenArea& region)
{
    return differingShare(after, region, [&](int x, int y) { return before.at(x, y); });
}

/// The share of pixels that differ from the region's upper-left one: 0 for a blank region.
inline double detailShare(const Picture& picture, const ScreenArea& region)
{
    return differingShare(picture, region, [&](int, int) { return picture.at(region.x, region.y); });
}
