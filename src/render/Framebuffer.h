#pragma once

#include "render/TargetTexture.h"

/// A GL framebuffer object over target textures, which it borrows. Owned along with them. An incomplete one is reported
/// on standard error and stays as it is.
class Framebuffer {
public:
    /// Either texture may be null; without a colour texture nothing is written but depth.
    Framebuffer(const TargetTexture* colour, const TargetTexture* depth);

    void bind() const { glBindFramebuffer(GL_FRAMEBUFFER, name); }
    GLuint getHandle() const { return name; }

private:
    GlObject name{GlKind::Framebuffer};
};
