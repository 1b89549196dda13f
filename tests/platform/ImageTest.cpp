#include "platform/Image.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

constexpr char kTopDown = 0x20; // the descriptor's bit for files that begin with the upper row

/// An 18-byte TGA header; a colour map, where there is one, has 24 bits an entry.
std::string header(int kind, int width, int height, int bits, int descriptor = 0, int mapEntries = 0)
{
    const auto byte = [](int value) { return static_cast<char>(value & 0xFF); };
    return {0, byte(mapEntries > 0), byte(kind), 0, 0, byte(mapEntries), byte(mapEntries >> 8), byte(mapEntries > 0 ? 24 : 0), 0, 0, 0, 0,
        byte(width), byte(width >> 8), byte(height), byte(height >> 8), byte(bits), byte(descriptor)};
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

class TgaFile : public testing::TestWithParam<Picture> {};

TEST_P(TgaFile, DecodesToRowsFromTheBottomUp)
{
    const TemporaryFolder folder;
    std::string error;
    const std::optional<Image> image = readTga(folder.write("picture.tga", GetParam().file), error);
    ASSERT_TRUE(image) << GetParam().what << ": " << error;
    EXPECT_EQ(image->width, 3);
    EXPECT_EQ(image->height, 2);
    EXPECT_EQ(image->channels, GetParam().channels);
    EXPECT_EQ(std::string(image->pixels.begin(), image->pixels.end()), GetParam().pixels) << GetParam().what;
}

const std::string kRunLengthRows = std::string("\x02") + kLowerRow + "\x82" + "abc"; // three pixels, then one pixel three times

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, TgaFile, testing::Values(
    Picture{"24 bits, lower row first", header(2, 3, 2, 24) + kLowerRow + kUpperRow, 3, kDecoded},
    Picture{"24 bits, upper row first", header(2, 3, 2, 24, kTopDown) + kUpperRow + kLowerRow, 3, kDecoded},
    Picture{"run-length encoded", header(10, 3, 2, 24) + kRunLengthRows, 3, "RGBrgbZYXcbacbacba"},
    Picture{"run-length encoded, upper row first", header(10, 3, 2, 24, kTopDown) + kRunLengthRows, 3, "cbacbacbaRGBrgbZYX"},
    Picture{"32 bits", header(2, 3, 2, 32, 8) + "BGRAbgraXYZ0123A456a7890", 4, "RGBArgbaZYX0321A654a9870"},
    Picture{"grey", header(3, 3, 2, 8) + "abcdef", 1, "abcdef"},
    Picture{"colour-mapped", header(1, 3, 2, 8, 0, 2) + "BGRbgr" + std::string("\0\1\0\1\1\1", 6), 3, "RGBrgbRGBrgbrgbrgb"},
    Picture{"followed by a footer", header(2, 3, 2, 24) + kLowerRow + kUpperRow + std::string(26, '\0'), 3, kDecoded}));
// clang-format on

struct BadFile {
    const char* what;
    std::string file;
    const char* error;
};

class BadTga : public testing::TestWithParam<BadFile> {};

TEST_P(BadTga, IsRefusedWithAReason)
{
    const TemporaryFolder folder;
    std::string error;
    EXPECT_FALSE(readTga(folder.write("picture.tga", GetParam().file), error)) << GetParam().what;
    EXPECT_EQ(error, GetParam().error) << GetParam().what;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, BadTga, testing::Values(
    BadFile{"empty", "", "not a TGA picture"},
    BadFile{"a header cut short", header(2, 3, 2, 24).substr(0, 17), "not a TGA picture"},
    BadFile{"the header alone", header(2, 3, 2, 24), "picture is cut short"},
    BadFile{"one byte short", header(2, 3, 2, 24) + kLowerRow + kUpperRow.substr(1), "picture is cut short"},
    BadFile{"a run cut short", header(10, 3, 2, 24) + kRunLengthRows.substr(0, 12), "picture is cut short"},
    BadFile{"packets that end early", header(10, 3, 2, 24) + kRunLengthRows.substr(0, 10), "picture is cut short"},
    BadFile{"a colour map cut short", header(1, 3, 2, 8, 0, 256) + std::string(700, 'x'), "picture is cut short"},
    BadFile{"large sides and nothing behind them", header(10, 16384, 16384, 32) + "abc", "picture is cut short"},
    BadFile{"no width", header(2, 0, 2, 24), "not a TGA picture"},
    BadFile{"sides beyond any texture", header(10, 65535, 65535, 24), "not a TGA picture"},
    BadFile{"an odd depth", header(2, 3, 2, 17) + kLowerRow + kUpperRow, "not a TGA picture"},
    BadFile{"another format", "\x89PNG\r\n\x1a\n" + std::string(40, 'x'), "not a TGA picture"},
    BadFile{"text", "<?xml version=\"1.0\" encoding=\"utf-8\"?>", "not a TGA picture"}));
// clang-format on

TEST(ImageTest, AMissingFileAndAFolderAreRefusedToo)
{
    const TemporaryFolder folder;
    std::string error;
    EXPECT_FALSE(readTga((folder.path() / "nothing.tga").string(), error));
    EXPECT_EQ(error, "couldn't open file");
    EXPECT_FALSE(readTga(folder.path().string(), error));
    EXPECT_EQ(error, "couldn't open file");
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
        const std::size_t expected = image ? static_cast<std::size_t>(image->width * image->height * image->channels) : 0;
        EXPECT_EQ(image ? image->pixels.size() : 0, expected);
    }
}

TEST(ImageTest, OddSidesAreRaisedToPowersOfTwoBilinearly)
{
    Image ramp{300, 200, 3, {}};
    for (int y = 0; y < ramp.height; ++y) {
        for (int x = 0; x < ramp.width; ++x) {
            for (int value : {x * 255 / 299, y * 255 / 199, 77}) ramp.pixels.push_back(static_cast<unsigned char>(value));
        }
    }

    const Image raised = resampledToPowersOfTwo(ramp);
    ASSERT_EQ(raised.width, 512);
    ASSERT_EQ(raised.height, 256);
    ASSERT_EQ(raised.pixels.size(), 512u * 256u * 3u);
    for (int x : {0, 100, 255, 400, 511}) EXPECT_NEAR(raised.at(x, 128)[0], x * 255 / 511.0, 1.5) << "x " << x;
    for (int y : {0, 50, 127, 200, 255}) EXPECT_NEAR(raised.at(256, y)[1], y, 1.5) << "y " << y;
    EXPECT_EQ(raised.at(300, 200)[2], 77);
}

TEST(ImageTest, PowersOfTwoStayAsTheyAre)
{
    Image image{4, 2, 1, {1, 200, 3, 44, 5, 66, 7, 0}};
    const Image same = resampledToPowersOfTwo(image);
    EXPECT_EQ(same.width, 4);
    EXPECT_EQ(same.height, 2);
    EXPECT_EQ(same.pixels, image.pixels);
}

TEST(ImageTest, HalvesBySidesThatAreLeftAndRoundsTheMean)
{
    const Image image{4, 2, 1, {1, 3, 10, 20, 5, 8, 30, 41}};
    const Image half = halved(image);
    EXPECT_EQ(half.width, 2);
    EXPECT_EQ(half.height, 1);
    EXPECT_EQ(half.pixels, (std::vector<unsigned char>{4, 25}));
    const Image last = halved(half); // one row is left: only the width shrinks
    EXPECT_EQ(last.width, 1);
    EXPECT_EQ(last.height, 1);
    EXPECT_EQ(last.pixels, (std::vector<unsigned char>{15}));
    const Image colours{2, 1, 3, {10, 20, 30, 20, 40, 60}};
    EXPECT_EQ(halved(colours).pixels, (std::vector<unsigned char>{15, 30, 45}));
}

} // namespace
