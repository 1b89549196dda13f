#include "platform/Image.h"

#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace {

constexpr int kMapped = 1, kTrueColour = 2, kGrey = 3, kRunLength = 8; // kinds of picture, and the bit beside them
constexpr int kTopDown = 0x20; // the descriptor's bit for files that begin with the upper row

/// The 18-byte header of a picture of two rows; a colour map, where there is one, has 24 bits an entry.
std::string header(int kind, int width, int bits, int descriptor = 0, int mapEntries = 0)
{
    const auto low = [](int value) { return static_cast<char>(value & 0xFF); };
    const auto high = [](int value) { return static_cast<char>(value >> 8); };
    const bool mapped = mapEntries > 0;
    return {0, low(mapped), low(kind), 0, 0, low(mapEntries), 0, low(mapped ? 24 : 0), 0, 0, 0, 0, low(width),
        high(width), 2, 0, low(bits), low(descriptor)};
}

class ImageTest : public testing::Test {
protected:
    std::optional<Image> read(const std::string& file)
    {
        error.clear();
        return readTga(folder.write("picture.tga", file), error);
    }

    TemporaryFolder folder;
    std::string error;
};

struct Picture {
    const char* what;
    std::string file;
    int width, channels;
    std::string pixels; ///< expected, from the lower left of two rows
};

// In files, components go blue, green, red.
const std::string kLower = "BGRbgrXYZ", kUpper = "123456789";
const std::string kPackets = "\x02" + kLower + "\x82" + "abc"; // three pixels, then one pixel three times

TEST_F(ImageTest, FilesDecodeToRowsFromTheBottomUpOrAreCutShort)
{
    const std::string decoded = "RGBrgbZYX321654987", many = std::string(70, 'x') + std::string(70, 'y');
    const std::string map = "BGRbgr", indices("\0\1\0\1\1\1", 6);
    std::string titled = header(kGrey, 3, 8) + std::string(200, 't') + "abcdef";
    titled[0] = static_cast<char>(200); // bytes of title, which no picture needs
    const Picture rows[] = {
        {"24 bits, lower row first", header(kTrueColour, 3, 24) + kLower + kUpper, 3, 3, decoded},
        {"24 bits, upper row first", header(kTrueColour, 3, 24, kTopDown) + kUpper + kLower, 3, 3, decoded},
        {"run-length", header(kTrueColour | kRunLength, 3, 24) + kPackets, 3, 3, "RGBrgbZYXcbacbacba"},
        {"32 bits", header(kTrueColour, 3, 32, 8) + "BGRAbgraXYZ0123A456a7890", 3, 4, "RGBArgbaZYX0321A654a9870"},
        {"grey, more than the decoder's buffer", header(kGrey, 70, 8) + many, 70, 1, many},
        {"titled", titled, 3, 1, "abcdef"},
        {"colour-mapped", header(kMapped, 3, 8, 0, 2) + map + indices, 3, 3, "RGBrgbRGBrgbrgbrgb"},
    };
    constexpr std::size_t kLeast = 17; // bytes that tell what a file is
    for (const Picture& row : rows) {
        SCOPED_TRACE(row.what);
        const std::string footer(26, '\0');
        for (const std::string& file : {row.file, row.file + footer}) {
            const std::optional<Image> image = read(file);
            ASSERT_TRUE(image) << error;
            EXPECT_EQ((std::array{image->width, image->height, image->channels}),
                (std::array{row.width, 2, row.channels}));
            EXPECT_EQ(std::string(image->pixels.begin(), image->pixels.end()), row.pixels);
        }
        for (std::size_t length = 0; length < row.file.size(); ++length) {
            EXPECT_FALSE(read(row.file.substr(0, length))) << length;
            EXPECT_EQ(error, length < kLeast ? "not a TGA picture" : "picture is cut short") << length;
        }
    }
}

TEST_F(ImageTest, BadFilesAreRefusedWithAReason)
{
    const char* const kNoTga = "not a TGA picture";
    const char* const kTooLarge = "picture cannot be decoded: too large";
    const std::pair<std::string, const char*> rows[] = {
        {header(kTrueColour, 0, 24) + kLower, kNoTga},
        {header(kTrueColour, 3, 17) + kLower + kUpper, kNoTga},
        {"\x89PNG\r\n\x1a\n" + std::string(40, 'x'), kNoTga},
        {header(kTrueColour | kRunLength, 4096, 32) + kPackets, "picture is cut short"},
        {header(kTrueColour | kRunLength, 4097, 24) + kPackets, kTooLarge},
    };
    for (const auto& [file, reason] : rows) {
        EXPECT_FALSE(read(file)) << testing::PrintToString(file);
        EXPECT_EQ(error, reason) << testing::PrintToString(file);
    }
    for (const std::filesystem::path& path : {folder.path() / "nothing.tga", folder.path()}) {
        EXPECT_FALSE(readTga(path.string(), error));
        EXPECT_EQ(error, "couldn't open file");
    }
}

TEST(Resampling, RaisesSidesToPowersOfTwoBilinearlyAndTransparentPixelsToo)
{
    // Columns of 3 become 4, rows of 5 become 8: what bilinear filtering makes of these, with the edges held.
    const std::vector<int> across{0, 40, 120}, down{0, 16, 32, 48, 64};
    const std::vector<int> raisedAcross{0, 25, 70, 120}, raisedDown{0, 7, 17, 27, 37, 47, 57, 64};
    const auto picture = [](const std::vector<int>& columns, const std::vector<int>& rows) {
        Image image{static_cast<int>(columns.size()), static_cast<int>(rows.size()), 4, {}};
        for (const int y : rows)
            for (const int x : columns)
                for (const int component : {x + y, 255 - x, 77, x})
                    image.pixels.push_back(static_cast<unsigned char>(component));
        return image;
    };
    const Image raised = resampledToPowersOfTwo(picture(across, down));
    EXPECT_EQ((std::array{raised.width, raised.height, raised.channels}), (std::array{4, 8, 4}));
    EXPECT_EQ(raised.pixels, picture(raisedAcross, raisedDown).pixels);
    EXPECT_EQ(resampledToPowersOfTwo(raised).pixels, raised.pixels) << "powers of two stay as they are";
}

} // namespace
