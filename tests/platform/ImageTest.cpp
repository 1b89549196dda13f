#include "platform/Image.h"

#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr char kTopDown = 0x20; // the descriptor's bit for files that begin with the upper row

/// An 18-byte TGA header; a colour map, where there is one, has 24 bits an entry.
std::string header(int kind, int width, int height, int bits, int descriptor = 0, int mapEntries = 0)
{
    const auto byte = [](int value) { return static_cast<char>(value & 0xFF); };
    return {0, byte(mapEntries > 0), byte(kind), 0, 0, byte(mapEntries), byte(mapEntries >> 8),
        byte(mapEntries > 0 ? 24 : 0), 0, 0, 0, 0, byte(width), byte(width >> 8), byte(height), byte(height >> 8),
        byte(bits), byte(descriptor)};
}

struct Picture {
    const char* what;
    std::string file;
    int channels;
    std::string pixels; ///< the 3 x 2 picture expected, from the lower left
};

// In files, components go blue, green, red.
const std::string kLowerRow = "BGRbgrXYZ", kUpperRow = "123456789";
const std::string kDecoded = "RGBrgbZYX321654987";

const std::string kRunLengthRows =
    std::string("\x02") + kLowerRow + "\x82" + "abc"; // three pixels, then one pixel three times

TEST(ImageTest, FilesDecodeToRowsFromTheBottomUp)
{
    const Picture rows[] = {{"24 bits, lower row first", header(2, 3, 2, 24) + kLowerRow + kUpperRow, 3, kDecoded},
        {"24 bits, upper row first", header(2, 3, 2, 24, kTopDown) + kUpperRow + kLowerRow, 3, kDecoded},
        {"run-length encoded", header(10, 3, 2, 24) + kRunLengthRows, 3, "RGBrgbZYXcbacbacba"},
        {"run-length encoded, upper row first", header(10, 3, 2, 24, kTopDown) + kRunLengthRows, 3,
            "cbacbacbaRGBrgbZYX"},
        {"32 bits", header(2, 3, 2, 32, 8) + "BGRAbgraXYZ0123A456a7890", 4, "RGBArgbaZYX0321A654a9870"},
        {"grey", header(3, 3, 2, 8) + "abcdef", 1, "abcdef"},
        {"colour-mapped", header(1, 3, 2, 8, 0, 2) + "BGRbgr" + std::string("\0\1\0\1\1\1", 6), 3,
            "RGBrgbRGBrgbrgbrgb"},
        {"followed by a footer", header(2, 3, 2, 24) + kLowerRow + kUpperRow + std::string(26, '\0'), 3, kDecoded}};
    const TemporaryFolder folder;
    for (const Picture& row : rows) {
        SCOPED_TRACE(row.what);
        std::string error;
        const std::optional<Image> image = readTga(folder.write("picture.tga", row.file), error);
        ASSERT_TRUE(image) << error;
        EXPECT_EQ((std::array{image->width, image->height, image->channels}), (std::array{3, 2, row.channels}));
        EXPECT_EQ(std::string(image->pixels.begin(), image->pixels.end()), row.pixels);
    }
}

TEST(ImageTest, BadFilesAreRefusedWithAReason)
{
    const char* const kNoTga = "not a TGA picture";
    const char* const kCutShort = "picture is cut short";
    const std::pair<std::string, const char*> rows[] = {{"", kNoTga}, {header(2, 3, 2, 24).substr(0, 17), kNoTga},
        {header(2, 3, 2, 24), kCutShort}, {header(2, 3, 2, 24) + kLowerRow + kUpperRow.substr(1), kCutShort},
        {header(10, 3, 2, 24) + kRunLengthRows.substr(0, 12), kCutShort},
        {header(10, 3, 2, 24) + kRunLengthRows.substr(0, 10), kCutShort},
        {header(1, 3, 2, 8, 0, 256) + std::string(700, 'x'), kCutShort},
        {header(10, 16384, 16384, 32) + "abc", kCutShort}, {header(2, 0, 2, 24), kNoTga},
        {header(10, 65535, 65535, 24), kNoTga}, {header(2, 3, 2, 17) + kLowerRow + kUpperRow, kNoTga},
        {"\x89PNG\r\n\x1a\n" + std::string(40, 'x'), kNoTga}};
    const TemporaryFolder folder;
    std::string error;
    for (const auto& [file, reason] : rows) {
        EXPECT_FALSE(readTga(folder.write("picture.tga", file), error)) << testing::PrintToString(file);
        EXPECT_EQ(error, reason) << testing::PrintToString(file);
    }
    for (const std::filesystem::path& path : {folder.path() / "nothing.tga", folder.path()}) {
        EXPECT_FALSE(readTga(path.string(), error));
        EXPECT_EQ(error, "couldn't open file");
    }
}

TEST(ImageTest, GarbledFilesAreRefusedOrDecodedWhole)
{
    const TemporaryFolder folder;
    std::mt19937 random(1);
    for (int i = 0; i < 500; ++i) {
        std::string file = header(i % 2 ? 10 : 2, 3, 2, 24);
        file.append(kRunLengthRows).append(kUpperRow);
        for (int hits = 0; hits < 4; ++hits) file[random() % file.size()] = static_cast<char>(random());
        std::string error;
        const std::optional<Image> image = readTga(folder.write("garbled.tga", file), error);
        EXPECT_NE(image.has_value(), !error.empty());
        const std::size_t expected =
            image ? static_cast<std::size_t>(image->width * image->height * image->channels) : 0;
        EXPECT_EQ(image ? image->pixels.size() : 0, expected);
    }
}

TEST(ImageTest, OddSidesAreRaisedToPowersOfTwoBilinearly)
{
    Image ramp{300, 200, 3, {}};
    for (int y = 0; y < ramp.height; ++y)
        for (int x = 0; x < ramp.width; ++x)
            for (int value : {x * 255 / 299, y * 255 / 199, 77})
                ramp.pixels.push_back(static_cast<unsigned char>(value));

    const Image raised = resampledToPowersOfTwo(ramp);
    ASSERT_EQ((std::array{raised.width, raised.height}), (std::array{512, 256}));
    ASSERT_EQ(raised.pixels.size(), 512u * 256u * 3u);
    for (int x : {0, 100, 255, 400, 511}) EXPECT_NEAR(raised.at(x, 128)[0], x * 255 / 511.0, 1.5) << "x " << x;
    for (int y : {0, 50, 127, 200, 255}) EXPECT_NEAR(raised.at(256, y)[1], y, 1.5) << "y " << y;
    EXPECT_EQ(raised.at(300, 200)[2], 77);
    EXPECT_EQ(resampledToPowersOfTwo(raised).pixels, raised.pixels) << "powers of two stay as they are";
}

TEST(ImageTest, HalvesBySidesThatAreLeftAndRoundsTheMean)
{
    using Bytes = std::vector<unsigned char>;
    const Image half = halved({4, 2, 1, {1, 3, 10, 20, 5, 8, 30, 41}});
    EXPECT_EQ((std::array{half.width, half.height}), (std::array{2, 1}));
    EXPECT_EQ(half.pixels, (Bytes{4, 25}));
    EXPECT_EQ(halved(half).pixels, Bytes{15}) << "one row is left: only the width shrinks";
    EXPECT_EQ(halved({2, 1, 3, {10, 20, 30, 20, 40, 60}}).pixels, (Bytes{15, 30, 45}));
}

} // namespace
