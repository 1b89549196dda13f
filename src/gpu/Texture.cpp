#include "gpu/Texture.h"

#include "base/Logger.h"

#include <algorithm>

namespace {

/// Repeat the grey component of pictures that have only that, so that every picture has three or four components.
Image withColour(Image image)
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

/// Return why there is nothing to upload; empty when there is.
std::string findFault(const TextureImage& image)
{
    if (image.levels.empty()) return image.error;
    const Image& whole = image.levels.front();
    return std::max(whole.width, whole.height) > largestSide() ? "picture is larger than the graphics card takes" : "";
}

/// Upload the whole chain of mipmaps to the bound texture.
void upload(const std::vector<Image>& levels)
{
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    for (std::size_t level = 0; level < levels.size(); ++level) {
        const Image& image = levels[level];
        const GLenum format = image.channels == 4 ? GL_RGBA : GL_RGB;
        glTexImage2D(GL_TEXTURE_2D, static_cast<GLint>(level), static_cast<GLint>(format), image.width, image.height, 0,
            format, GL_UNSIGNED_BYTE, image.pixels.data());
    }
}

} // namespace

/// The levels are what glGenerateMipmap would make. That call has a software driver compile a program for each format
/// first, which takes longer than loading everything else.
TextureImage TextureImage::read(const std::string& path)
{
    TextureImage result;
    std::optional<Image> image = readTga(path, result.error);
    if (!image) return result;

    std::vector<Image>& levels = result.levels;
    levels.push_back(resampledToPowersOfTwo(withColour(*std::move(image))));
    while (levels.back().width > 1 || levels.back().height > 1) levels.push_back(halved(levels.back()));
    return result;
}

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

void Texture::load(const std::string& path, const TextureImage& image)
{
    const std::string fault = findFault(image);
    if (!fault.empty()) logLine(0) << fault << ": " << path << std::endl;
    generate();
    bind();
    if (fault.empty()) upload(image.levels);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    unbind();
}
