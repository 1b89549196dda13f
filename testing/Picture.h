#pragma once

#include <cstddef>
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

/// The share (0 to 1) of a region's pixels that differ visibly between two pictures of the same size.
double changedShare(const Picture& before, const Picture& after, const ScreenArea& region);

/// The share (0 to 1) of a region's pixels that differ visibly from the region's upper-left one: 0 for a blank region.
double detailShare(const Picture& picture, const ScreenArea& region);

/// How many of a region's pixels are nearly black: outlines of letters and figures, rubber. The landscape and the sky
/// have none.
int darkPixels(const Picture& picture, const ScreenArea& region);
