#pragma once

#include "render/ModelRegistry.h"

#include <vector>

class Model;

/// Draws the depth of the shadow-casting models as the light sees them. Owned by the renderer, which walks the scene
/// with it before each frame: the walk only adds models, releaseModel withdraws one.
class ShadowMappingRender final : public ModelRegistry {
public:
    /// Draws every caster of the registry, as triangles whatever its primitive type, into the framebuffer and viewport
    /// that are set.
    void render();

    /// The registered models that cast shadows, in registry order.
    std::vector<Model*> casters() const;

    /// Draws these casters only, likewise.
    static void draw(const std::vector<Model*>& models);
};
