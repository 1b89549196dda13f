#pragma once

#include "render/FrameProbe.h"

#include <vector>

/// Reads a frame just before it is swapped into the window. Set as the renderer's probe while the frame is drawn.
class FrameReader : public IFrameProbe {
public:
    FrameReader(int windowWidth, int windowHeight) : width(windowWidth), height(windowHeight) {} ///< pixels

    void stepDone(const char* step) override;

    /// Return 8-bit red, green, blue, rows from the top down; nothing before a frame was drawn.
    const std::vector<unsigned char>& getPixels() const { return pixels; }

private:
    const int width, height;
    std::vector<unsigned char> pixels;
};
