#pragma once

#include "base/ILibraryObject.h"
#include "gpu/GlObject.h"
#include "platform/Image.h"

#include <string>
#include <vector>

/// A picture as a texture takes it: its sides raised to powers of two, of three or four components.
struct TextureImage {
    std::vector<Image> levels; ///< from the whole picture to one texel, each half as large; none when the file has none
    std::string error;         ///< why there are none, in a few words

    /// Read a TGA file. Needs no context: any thread.
    static TextureImage read(const std::string& path);
};

/// A two-dimensional GL texture, read from a TGA file. Owned by the asset library; everybody else borrows it.
class Texture : public ILibraryObject {
public:
    virtual ~Texture() = default;

    /// Put a fresh texture object in place of the old one, which is deleted.
    void generate();

    void bind() const; ///< on the active unit
    void unbind() const;
    GLuint getHandle() const { return handle; } ///< 0 before the first generate()

    void setFilter(GLint magFilter, GLint minFilter);

    /// Read a file into a fresh texture object: sides raised to powers of two, repeating, trilinear, with mipmaps. A
    /// file that is missing or broken gives one log line at level 0 and leaves the object without an image, which
    /// samples as black.
    void load(const std::string& path) { load(path, TextureImage::read(path)); }

    /// Likewise, with what TextureImage::read has made of the file.
    void load(const std::string& path, const TextureImage& image);

private:
    GlObject handle;
};
