#include "platform/Image.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>

namespace {

Image read(const std::string& file)
{
    std::string error;
    auto image = readTga(DATA_FOLDER + file, error);
    EXPECT_TRUE(image) << file << ": " << error;
    return image.value_or(Image{});
}

/// The largest difference of a colour component between two texels.
int difference(const Image& image, int x, int y, int otherX, int otherY)
{
    int largest = 0;
    for (int c = 0; c < 3; ++c) largest = std::max(largest, std::abs(image.at(x, y)[c] - image.at(otherX, otherY)[c]));
    return largest;
}

TEST(Pictures, AreUploadedWithoutResampling)
{
    const std::pair<const char*, int> rows[] = {
        {"Models/skybox.tga", 3},
        {"Textures/Dirt.tga", 3},
        {"Textures/Grass.tga", 3},
        {"Textures/Smoke.tga", 4},
        {"Textures/font.tga", 4},
    };
    for (const auto& [file, channels] : rows) {
        const Image image = read(file);
        EXPECT_EQ(image.channels, channels) << file;
        for (const int side : {image.width, image.height})
            EXPECT_TRUE(std::has_single_bit(static_cast<unsigned>(side))) << file;
    }
}

TEST(Pictures, OfTheGroundRepeatWithoutASeam)
{
    for (const char* file : {"Textures/Dirt.tga", "Textures/Grass.tga"}) {
        const Image image = read(file);
        const auto stepBetweenRows = [&](int y, int next) {
            int sum = 0;
            for (int x = 0; x < image.width; ++x)
                sum += difference(image, x, y, x, next) + difference(image, y, x, next, x);
            return sum;
        };
        int largest = 0;
        for (int y = 0; y + 1 < image.height; ++y) largest = std::max(largest, stepBetweenRows(y, y + 1));
        EXPECT_LE(stepBetweenRows(image.height - 1, 0), largest) << file;
    }
}

TEST(FontPicture, HasEveryPrintableCharacterAndNothingElseEachOffItsNeighbours)
{
    constexpr int kDrawnFrom = 128; // alpha; less is not drawn
    const Image font = read("Textures/font.tga");
    const int side = font.width / 16;
    const auto isRim = [side](int at) { return at % side == 0 || at % side == side - 1; };
    std::array<int, 256> drawnTexels{}; // by cell
    for (int y = 0; y < font.height; ++y) {
        for (int x = 0; x < font.width; ++x) {
            if (font.at(x, y)[3] < kDrawnFrom) continue;
            ASSERT_FALSE(isRim(x) || isRim(y)) << x << ", " << y;
            ++drawnTexels.at(static_cast<std::size_t>(y / side * 16 + x / side));
        }
    }
    for (std::size_t cell = 0; cell < drawnTexels.size(); ++cell)
        EXPECT_EQ(drawnTexels[cell] > 10, cell <= '~' - '!') << "cell " << cell << ": " << drawnTexels[cell];
}

TEST(SkyPicture, HasFacesThatMeetAndAFloorOfOneColour)
{
    const Image sky = read("Models/skybox.tga");
    const int cell = sky.width / 4, top = cell - 1;
    constexpr int kTolerance = 30; // of 255: half the step from sky to hill, which clouds crossing a seam stay below
    const std::pair<const char*, std::function<int(int)>> seams[] = {
        {"-X to +Z", [&](int i) { return difference(sky, cell - 1, i, cell, i); }},
        {"+Z to +X", [&](int i) { return difference(sky, 2 * cell - 1, i, 2 * cell, i); }},
        {"+X to -Z", [&](int i) { return difference(sky, 3 * cell - 1, i, 3 * cell, i); }},
        {"-Z to -X", [&](int i) { return difference(sky, 4 * cell - 1, i, 0, i); }},
        {"+Z to +Y", [&](int i) { return difference(sky, cell + i, top, cell + i, cell); }},
        {"+X to +Y", [&](int i) { return difference(sky, 2 * cell + i, top, 2 * cell - 1, cell + i); }},
        {"-Z to +Y", [&](int i) { return difference(sky, 3 * cell + i, top, 2 * cell - 1 - i, 2 * cell - 1); }},
        {"-X to +Y", [&](int i) { return difference(sky, i, top, cell, 2 * cell - 1 - i); }},
    };
    for (const auto& [name, step] : seams)
        for (int i = 0; i < cell; ++i) ASSERT_LE(step(i), kTolerance) << name << " at texel " << i;

    constexpr int kFloorTolerance = 2;
    for (int x = 0; x < sky.width; ++x) {
        ASSERT_LE(difference(sky, 0, 0, x, 0), kFloorTolerance) << "lower edge at " << x;
        ASSERT_LE(difference(sky, 0, 0, x, sky.height - 1), kFloorTolerance)
            << "upper edge, which filtering mixes in, at " << x;
    }
}

TEST(HeightImage, LiesHighAndGentleWhereCarsEnter)
{
    constexpr int kSamples = 64, kSpacing = 8; // per side; pixels and world units
    constexpr float kUnitsAByte = 50.0f / 255.0f;
    constexpr float kLow = 39.0f, kHigh = 46.0f; // cars drop in from 50; a longer fall ends on the roof
    constexpr float kSteepest = 0.36f;           // 20 degrees; computer players never brake
    const Image map = read("Textures/map.tga");
    ASSERT_GE(map.width, 512);
    ASSERT_GE(map.height, 512);

    const auto height = [&](int row, int column) {
        return static_cast<float>(*map.at(column * kSpacing, row * kSpacing)) * kUnitsAByte;
    };
    const auto isEntry = [](int sample) { return std::abs(sample * kSpacing - 256) <= 100 + kSpacing; };
    for (int row = 0; row + 1 < kSamples; ++row) {
        for (int column = 0; column + 1 < kSamples; ++column) {
            if (!isEntry(row) || !isEntry(column)) continue;
            const float h = height(row, column);
            EXPECT_TRUE(h >= kLow && h <= kHigh)
                << h << " at x " << row * kSpacing - 256 << ", z " << column * kSpacing - 256;
            EXPECT_LE(std::hypot(height(row + 1, column) - h, height(row, column + 1) - h) / kSpacing, kSteepest)
                << "at x " << row * kSpacing - 256 << ", z " << column * kSpacing - 256;
        }
    }
}

} // namespace
