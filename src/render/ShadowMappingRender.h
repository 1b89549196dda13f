#pragma once

#include "render/ModelRegistry.h"

#include <vector>

class Model;

/// Draws the depth of the shadow-casting models as the light sees them. Owned by the renderer, which walks the scene
/// with it before each frame: the walk only adds models, releaseModel withdraws one.
class ShadowMappingRender final : public ModelRegistry {
public:
    /// Draw every caster of the registry, as triangles whatever its primitive type, into the framebuffer and viewport
    /// that are set.
    void render();

    std::vector<Model*> casters() const; ///< the registered models that cast shadows, in registry order

    static void draw(const std::vector<Model*>& models); ///< draw these casters only, likewise
};
