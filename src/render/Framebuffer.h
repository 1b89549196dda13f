#pragma once

#include "render/TargetTexture.h"

/// A GL framebuffer object over target textures, which it borrows. Move-only; an empty or moved-from one has name 0,
/// which is the window's own framebuffer. An incomplete one is reported on standard error and stays as it is.
class Framebuffer {
public:
    Framebuffer() = default;

    /// Either texture may be null; without a colour texture nothing is written but depth.
    Framebuffer(const TargetTexture* colour, const TargetTexture* depth);
    ~Framebuffer();
    Framebuffer(Framebuffer&& other) noexcept { std::swap(name, other.name); }
    Framebuffer& operator=(Framebuffer&& other) noexcept
    {
        std::swap(name, other.name);
        return *this;
    }

    void bind() const { glBindFramebuffer(GL_FRAMEBUFFER, name); }
    GLuint getHandle() const { return name; }

private:
    GLuint name = 0;
};
