#include "gpu/Texture.h"

#include "base/Logger.h"
#include "platform/Image.h"

#include <algorithm>

namespace {

/// Repeat the grey component of pictures that have only that, so that every picture has three or four components.
Image withColour(const Image& image)
{
    if (image.channels >= 3) return image;
    Image result{image.width, image.height, image.channels + 2, {}};
    for (std::size_t i = 0; i < image.pixels.size(); i += static_cast<std::size_t>(image.channels)) {
        result.pixels.insert(result.pixels.end(), 3, image.pixels[i]);
        if (image.channels == 2) result.pixels.push_back(image.pixels[i + 1]);
    }
    return result;
}

int largestSide()
{
    GLint side = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &side);
    return side;
}

/// Return the picture as it is uploaded; nothing, with one log line, when the file does not yield one.
std::optional<Image> readImage(const std::string& path)
{
    std::string error;
    std::optional<Image> image = readTga(path, error);
    if (image && std::max(image->width, image->height) > largestSide()) {
        image.reset();
        error = "picture is larger than the graphics card takes";
    }
    if (!image) {
        logLine(0) << error << ": " << path << std::endl;
        return std::nullopt;
    }
    return resampledToPowersOfTwo(withColour(*image));
}

/// Upload the whole chain of mipmaps to the bound texture, each half as large as the one before, as glGenerateMipmap
/// would make it. That call has a software driver compile a program for each format first, which takes longer than
/// loading everything else.
void upload(const Image& image)
{
    const GLenum format = image.channels == 4 ? GL_RGBA : GL_RGB;
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    Image half;
    const Image* next = &image;
    for (GLint level = 0;; ++level) {
        glTexImage2D(GL_TEXTURE_2D, level, static_cast<GLint>(format), next->width, next->height, 0, format,
            GL_UNSIGNED_BYTE, next->pixels.data());
        if (next->width == 1 && next->height == 1) return;
        half = halved(*next);
        next = &half;
    }
}

} // namespace

void Texture::generate()
{
    handle = GlObject(GlKind::Texture);
}

void Texture::bind() const
{
    glBindTexture(GL_TEXTURE_2D, handle);
}

void Texture::unbind() const
{
    glBindTexture(GL_TEXTURE_2D, 0);
}

void Texture::setFilter(GLint magFilter, GLint minFilter)
{
    bind();
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, magFilter);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, minFilter);
    unbind();
}

void Texture::load(const std::string& path)
{
    const std::optional<Image> image = readImage(path);
    generate();
    bind();
    if (image) upload(*image);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    unbind();
}
