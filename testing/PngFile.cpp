#include "testing/PngFile.h"

#include <png.h>

#include <stdexcept>

namespace {

png_image describe(int width, int height)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_RGB;
    return image;
}

[[noreturn]] void fail(const std::string& path, const png_image& image)
{
    throw std::runtime_error(path + ": " + image.message);
}

} // namespace

Picture readPng(const std::string& path)
{
    png_image image = describe(0, 0);
    if (!png_image_begin_read_from_file(&image, path.c_str())) fail(path, image);
    image.format = PNG_FORMAT_RGB;
    Picture picture{static_cast<int>(image.width), static_cast<int>(image.height), {}};
    picture.pixels.resize(PNG_IMAGE_SIZE(image));
    if (!png_image_finish_read(&image, nullptr, picture.pixels.data(), 0, nullptr)) fail(path, image);
    return picture;
}

void writePng(const std::string& path, const Picture& picture)
{
    png_image image = describe(picture.width, picture.height);
    if (!png_image_write_to_file(&image, path.c_str(), 0, picture.pixels.data(), 0, nullptr)) fail(path, image);
}
