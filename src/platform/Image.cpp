#include "platform/Image.h"

#include <png.h>
#include <stb/stb_image.h>
#include <stb/stb_image_resize.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fstream>

namespace {

/// What the decoder reads from: a file, which notes that more was wanted than it has. The decoder itself goes on with
/// zeros then, and a picture that shows black where data is missing is no picture.
struct Source {
    std::ifstream file;
    const char* buffer = nullptr; // the decoder's own, which its first read fills
    bool cutShort = false;

    static int read(void* user, char* data, int size)
    {
        Source& source = *static_cast<Source*>(user);
        if (!source.buffer) source.buffer = data;
        source.file.read(data, size);
        const int count = static_cast<int>(source.file.gcount());
        // At the end of an intact file the buffer may get less than it holds; what goes straight to pixels is needed.
        if (count == 0 || (count < size && data != source.buffer)) source.cutShort = true;
        return count;
    }

    static void skip(void* user, int count) { static_cast<Source*>(user)->file.ignore(count); }
    static int atEnd(void* user) { return static_cast<Source*>(user)->file.eof(); }
};

constexpr stbi_io_callbacks kCallbacks{Source::read, Source::skip, Source::atEnd};

std::size_t byteCount(const Image& image)
{
    return static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height) *
        static_cast<std::size_t>(image.channels);
}

} // namespace

std::optional<Image> readTga(const std::string& path, std::string& error)
{
    Source source;
    std::error_code status;
    if (std::filesystem::is_regular_file(path, status)) source.file.open(path, std::ios::binary);
    if (!source.file.is_open()) {
        error = "couldn't open file";
        return std::nullopt;
    }

    Image image;
    stbi_set_flip_vertically_on_load_thread(1);
    stbi_uc* const decoded =
        stbi_load_from_callbacks(&kCallbacks, &source, &image.width, &image.height, &image.channels, 0);
    const std::string failure = decoded ? "" : stbi_failure_reason();
    if (failure == "unknown image type") error = "not a TGA picture";
    else if (source.cutShort) error = "picture is cut short";
    else if (!decoded) error = "picture cannot be decoded: " + failure;
    else image.pixels.assign(decoded, decoded + byteCount(image));
    stbi_image_free(decoded);
    if (image.pixels.empty()) return std::nullopt;
    return image;
}

std::error_code writeNewPng(const Image& image, const std::filesystem::path& path)
{
    std::FILE* const file = std::fopen(path.c_str(), "wbx");
    if (!file) return {errno, std::generic_category()};
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(image.width);
    png.height = static_cast<png_uint_32>(image.height);
    png.format = PNG_FORMAT_RGB;
    png.flags = PNG_IMAGE_FLAG_FAST; // somebody waits for the next frame
    errno = 0;
    const int upwards = -image.width * image.channels;
    const bool isEncoded = png_image_write_to_stdio(&png, file, 0, image.pixels.data(), upwards, nullptr) != 0;
    if (std::fclose(file) == 0 && isEncoded) return {};
    const std::error_code failure(errno != 0 ? errno : EIO, std::generic_category());
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    return failure;
}

Image resampledToPowersOfTwo(Image image)
{
    const auto raised = [](int side) { return static_cast<int>(std::bit_ceil(static_cast<std::uint32_t>(side))); };
    const int width = raised(image.width), height = raised(image.height);
    if (width == image.width && height == image.height) return image;

    Image result{width, height, image.channels, {}};
    result.pixels.resize(byteCount(result));
    stbir_resize_uint8_generic(image.pixels.data(), image.width, image.height, 0, result.pixels.data(), width, height,
        0, image.channels, STBIR_ALPHA_CHANNEL_NONE, 0, STBIR_EDGE_CLAMP, STBIR_FILTER_TRIANGLE,
        STBIR_COLORSPACE_LINEAR, nullptr);
    return result;
}

Image halved(const Image& image)
{
    Image half{std::max(image.width / 2, 1), std::max(image.height / 2, 1), image.channels, {}};
    const int stepX = image.width / half.width; // 2, or 1 along a side that is used up
    const int stepY = image.height / half.height;
    half.pixels.reserve(byteCount(half));
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
