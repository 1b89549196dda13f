#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

/// A decoded picture: 8-bit components, rows from the bottom up, tightly packed.
struct Image {
    int width = 0;                     ///< pixels
    int height = 0;                    ///< pixels
    int channels = 0;                  ///< components a pixel, 1 to 4
    std::vector<unsigned char> pixels; ///< width x height x channels bytes

    const unsigned char* at(int x, int y) const
    {
        return pixels.data() +
            (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)) *
            static_cast<std::size_t>(channels);
    }
};

/// Read a TGA file, uncompressed or run-length encoded, with sides of at most 4096 pixels. Return nothing when the file
/// is missing, is no TGA, is cut short or too large; then `error` says which of these, in a few words.
std::optional<Image> readTga(const std::string& path, std::string& error);

/// Write a picture of red, green and blue as a new PNG file; one that is there already stays as it is, and is an error.
/// Of a file that cannot be written to its end nothing remains.
std::error_code writeNewPng(const Image& image, const std::filesystem::path& path);

/// Raise each side to the smallest power of two not below it, bilinearly. A picture that has such sides comes back as
/// it is.
Image resampledToPowersOfTwo(Image image);

/// Return a picture of half the width and height (at least 1), each pixel the mean of those that it covers. Sides are
/// powers of two.
Image halved(const Image& image);
