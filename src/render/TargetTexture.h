#pragma once

#include "gpu/GlObject.h"

#include <glm/glm.hpp>

/// A GL texture without initial data that passes render into (linear filters, clamped to its edges). Owned by the
/// target or pass whose picture it holds.
class TargetTexture {
public:
    /// The formats and the type are those of glTexImage2D.
    TargetTexture(GLint internalFormat, GLenum format, GLenum type, glm::ivec2 sizeInPixels);

    GLuint getHandle() const { return name; }
    glm::ivec2 getSize() const { return size; } ///< pixels

private:
    GlObject name{GlKind::Texture};
    glm::ivec2 size;
};
