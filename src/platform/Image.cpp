#include "platform/Image.h"

#include <stb/stb_image.h>
#include <stb/stb_image_resize.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

constexpr std::size_t kTgaHeaderBytes = 18;
constexpr int kLargestSide = 16384; // pixels; more than any texture unit takes

enum TgaKind { kColourMapped = 1, kTrueColour = 2, kGrey = 3, kRunLengthBit = 8 };

int word(const std::vector<unsigned char>& bytes, std::size_t at)
{
    return bytes[at] | (bytes[at + 1] << 8);
}

/// The decoder fills what a cut file lacks with zeros; a picture that shows black where data is missing is no picture.
bool holdsAllPixels(const std::vector<unsigned char>& bytes)
{
    const int kind = bytes[2];
    const auto pixels = static_cast<std::size_t>(word(bytes, 12)) * static_cast<std::size_t>(word(bytes, 14));
    const auto pixelBytes = static_cast<std::size_t>((bytes[16] + 7) / 8);
    const std::size_t mapBytes =
        bytes[1] ? static_cast<std::size_t>(word(bytes, 5)) * static_cast<std::size_t>((bytes[7] + 7) / 8) : 0;
    std::size_t at = kTgaHeaderBytes + bytes[0] + mapBytes;
    if (!(kind & kRunLengthBit)) return bytes.size() >= at + pixels * pixelBytes;

    std::size_t decoded = 0;
    while (decoded < pixels) {
        if (at >= bytes.size()) return false;
        const unsigned packet = bytes[at];
        const std::size_t length = (packet & 0x7Fu) + 1;
        at += 1 + (packet & 0x80u ? pixelBytes : length * pixelBytes);
        decoded += length;
    }
    return at <= bytes.size();
}

bool isTgaHeader(const std::vector<unsigned char>& bytes)
{
    const int kind = bytes[2] & ~kRunLengthBit;
    const int width = word(bytes, 12), height = word(bytes, 14), bits = bytes[16];
    const bool kindFits =
        bytes[1] == 1 ? kind == kColourMapped : bytes[1] == 0 && (kind == kTrueColour || kind == kGrey);
    const bool bitsFit = bits == 8 || bits == 15 || bits == 16 || bits == 24 || bits == 32;
    return kindFits && bitsFit && width > 0 && height > 0 && width <= kLargestSide && height <= kLargestSide;
}

} // namespace

std::optional<Image> readTga(const std::string& path, std::string& error)
{
    std::ifstream file(path, std::ios::binary);
    std::error_code status;
    if (!file || !std::filesystem::is_regular_file(path, status)) { // a folder opens, and throws when read
        error = "couldn't open file";
        return std::nullopt;
    }
    const std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (bytes.size() < kTgaHeaderBytes || !isTgaHeader(bytes)) {
        error = "not a TGA picture";
        return std::nullopt;
    }
    if (!holdsAllPixels(bytes)) {
        error = "picture is cut short";
        return std::nullopt;
    }

    Image image;
    stbi_set_flip_vertically_on_load(1);
    unsigned char* decoded = stbi_load_from_memory(bytes.data(), static_cast<int>(bytes.size()), &image.width,
        &image.height, &image.channels, 0);
    if (!decoded) {
        error = "picture cannot be decoded";
        return std::nullopt;
    }
    image.pixels.assign(decoded,
        decoded +
            static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height) *
                static_cast<std::size_t>(image.channels));
    stbi_image_free(decoded);
    return image;
}

Image resampledToPowersOfTwo(Image image)
{
    const auto raised = [](int side) { return static_cast<int>(std::bit_ceil(static_cast<std::uint32_t>(side))); };
    const int width = raised(image.width), height = raised(image.height);
    if (width == image.width && height == image.height) return image;

    Image result{width, height, image.channels, {}};
    result.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
        static_cast<std::size_t>(image.channels));
    stbir_resize_uint8_generic(image.pixels.data(), image.width, image.height, 0, result.pixels.data(), width, height,
        0, image.channels, STBIR_ALPHA_CHANNEL_NONE, 0, STBIR_EDGE_CLAMP, STBIR_FILTER_TRIANGLE,
        STBIR_COLORSPACE_LINEAR, nullptr);
    return result;
}

Image halved(const Image& image)
{
    Image half{std::max(image.width / 2, 1), std::max(image.height / 2, 1), image.channels, {}};
    const int stepX = image.width / half.width,
              stepY = image.height / half.height; // 2, or 1 along a side that is used up
    half.pixels.reserve(static_cast<std::size_t>(half.width) * static_cast<std::size_t>(half.height) *
        static_cast<std::size_t>(half.channels));
    for (int y = 0; y < half.height; ++y) {
        for (int x = 0; x < half.width; ++x) {
            const unsigned char* low = image.at(x * stepX, y * stepY);
            const unsigned char* high = image.at(x * stepX, y * stepY + stepY - 1);
            const int right = (stepX - 1) * image.channels;
            for (int i = 0; i < image.channels; ++i) {
                const int sum = low[i] + low[i + right] + high[i] + high[i + right];
                half.pixels.push_back(static_cast<unsigned char>((sum + 2) / 4));
            }
        }
    }
    return half;
}
