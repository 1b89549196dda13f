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

    /// Return whether anything but ground and sky may have cast its shadow into a box. The corners in coordinates that
    /// the transform leads from to the world's.
    bool mayReach(const glm::mat4& toWorld, const glm::vec3& min, const glm::vec3& max) const;

private:
    struct Rect {
        int x = 0, y = 0, width = 0, height = 0; ///< texels

        bool contains(const Rect& other) const;
        bool touches(const Rect& other) const;
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
    Rect coveredBy(const Model& model) const;                               ///< of known bounds
    Rect rectAround(const glm::vec2& centre, const glm::vec2& reach) const; ///< both 0 to 1 across the texture
    void target(const Framebuffer& framebuffer) const;

    const TargetTexture& lightTexture;
    const Framebuffer& light;
    TargetTexture staticTexture;
    Framebuffer staticFramebuffer;
    std::vector<Snapshot> drawnStatic;
    unsigned drawnWith = 0;        // version of the depth program
    std::vector<Rect> stillThings; // where they are drawn
    std::vector<Rect> touched;     // by what moves
    bool valid = false;
};
