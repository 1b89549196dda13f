#pragma once

#include "render/Framebuffer.h"
#include "render/TargetTexture.h"

#include <glm/glm.hpp>

#include <vector>

class Model;
class ShadowMappingRender;

/// Fills the light depth texture with the same picture as clearing it and drawing every caster would give, without
/// drawing what never moves again each frame: the static casters are kept in a texture of their own, and only the
/// rectangles that moving casters covered in the frame before are restored from it.
///
/// Owned by the renderer. draw() once a frame, after the scene update and the shadow visitor's walk.
class ShadowCache {
public:
    /// Borrow both texture and framebuffer.
    ShadowCache(const TargetTexture& lightDepthTexture, const Framebuffer& lightFramebuffer);

    /// Fill the texture. Leave the light's framebuffer bound, with viewport and scissor box over all of it.
    void draw(const ShadowMappingRender& shadows);

    /// Have the next draw() start anew: something else drew into the light depth texture.
    void invalidate() { valid = false; }

private:
    struct Rect {
        int x = 0, y = 0, width = 0, height = 0; ///< texels
    };

    /// What a static caster looked like when it was drawn.
    struct Snapshot {
        const Model* model;
        GLuint vertexArray;
        glm::mat4 transform;
        bool operator==(const Snapshot&) const = default;
    };

    void drawStatic(const std::vector<Model*>& casters);
    void restore(const Rect& rect) const;
    Rect wholeTexture() const;
    std::vector<Rect> coveredBy(const std::vector<Model*>& models) const;
    Rect coveredBy(const Model& model) const; ///< of known bounds
    void target(const Framebuffer& framebuffer) const;

    const TargetTexture& lightTexture;
    const Framebuffer& light;
    TargetTexture staticTexture;
    Framebuffer staticFramebuffer;
    std::vector<Snapshot> drawnStatic;
    unsigned drawnWith = 0; // version of the depth program
    std::vector<Rect> touched;
    bool valid = false;
};
