#include "platform/Image.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

// What the game takes for granted about its pictures, and what no picture of the game shows.
namespace {

Image read(const std::string& file)
{
    std::string error;
    return readTga(DATA_FOLDER + file, error).value(); // throws when it can't be read
}

TEST(PictureFiles, OfTheGroundRepeatWithoutASeam)
{
    constexpr int kSmooth = 1; // of 255, the mean of all components; lines within these pictures differ by up to 2
    for (const char* file : {"Textures/Dirt.tga", "Textures/Grass.tga"}) {
        const Image image = read(file);
        const int last = image.width - 1;
        int rows = 0, columns = 0; // how the first one differs from the last
        for (int i = 0; i <= last; ++i)
            for (int c = 0; c < image.channels; ++c) {
                rows += std::abs(image.at(i, 0)[c] - image.at(i, last)[c]);
                columns += std::abs(image.at(0, i)[c] - image.at(last, i)[c]);
            }
        EXPECT_LT(std::max(rows, columns), kSmooth * image.width * image.channels) << file;
    }
}

TEST(PictureFiles, OfTheFontHaveEveryPrintableCharacterAndNothingElseEachOffItsNeighbours)
{
    constexpr int kDrawnFrom = 128; // alpha; less is not drawn
    const Image font = read("Textures/font.tga");
    const int side = font.width / 16;
    std::array<int, 256> drawnTexels{}; // by cell
    for (int y = 0; y < font.height; ++y)
        for (int x = 0; x < font.width; ++x) {
            if (font.at(x, y)[3] < kDrawnFrom) continue;
            for (const int at : {x % side, y % side}) ASSERT_TRUE(at > 0 && at < side - 1) << x << ", " << y;
            ++drawnTexels.at(static_cast<std::size_t>(y / side * 16 + x / side));
        }
    for (std::size_t cell = 0; cell < drawnTexels.size(); ++cell)
        EXPECT_EQ(drawnTexels[cell] > 10, cell <= '~' - '!') << "cell " << cell << ": " << drawnTexels[cell];
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
