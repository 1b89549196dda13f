#include "platform/Image.h"

#include <gtest/gtest.h>

#include <cmath>

// What the game takes for granted about its pictures.
namespace {

Image read(const std::string& file)
{
    std::string error;
    return readTga(DATA_FOLDER + file, error).value(); // throws when it can't be read
}

TEST(PictureFiles, OfTheHeightsLieHighAndGentleWhereCarsEnter)
{
    constexpr int kSpacing = 8, kFirst = 19, kLast = 45; // units a sample; samples a hundred units around the origin
    constexpr float kLow = 39.0f, kHigh = 46.0f;         // cars drop in from 50; a longer fall ends on the roof
    constexpr float kSteepest = 0.36f;                   // 20 degrees; computer players never brake
    const Image map = read("Textures/map.tga");
    const auto height = [&map](int row, int column) { return *map.at(column * kSpacing, row * kSpacing) / 5.1f; };
    for (int row = kFirst; row <= kLast; ++row)
        for (int column = kFirst; column <= kLast; ++column) {
            const float h = height(row, column);
            const float slope = std::hypot(height(row + 1, column) - h, height(row, column + 1) - h) / kSpacing;
            EXPECT_TRUE(h >= kLow && h <= kHigh && slope <= kSteepest)
                << h << ", slope " << slope << " at row " << row << ", column " << column;
        }
}

} // namespace
