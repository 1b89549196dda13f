#pragma once

#include <GL/glew.h>
#include <glm/glm.hpp>

#include <utility>

/// A GL texture without initial data that passes render into (glTexImage2D, linear filters, clamped to its edges).
/// Move-only; an empty or moved-from one has name 0 and may only be assigned to or destroyed.
class TargetTexture {
public:
    TargetTexture() = default;
    TargetTexture(GLint internalFormat, GLenum format, GLenum type, glm::ivec2 sizeInPixels);
    ~TargetTexture();
    TargetTexture(TargetTexture&& other) noexcept { swap(other); }
    TargetTexture& operator=(TargetTexture&& other) noexcept
    {
        swap(other);
        return *this;
    }

    GLuint getHandle() const { return name; }
    glm::ivec2 getSize() const { return size; } ///< pixels

private:
    void swap(TargetTexture& other) noexcept
    {
        std::swap(name, other.name);
        std::swap(size, other.size);
    }

    GLuint name = 0;
    glm::ivec2 size{0};
};
