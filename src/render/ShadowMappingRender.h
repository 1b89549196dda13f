#pragma once

#include "scene/INodeVisitor.h"

#include <set>
#include <vector>

class Model;

/// Draws the depth of the shadow-casting models as the light sees them. Owned by the renderer, which walks the scene with it before
/// each frame: the walk only adds models, releaseModel withdraws one.
class ShadowMappingRender final : public INodeVisitor {
public:
    void visitModel(Model* model) override { registry.insert(model); }
    void visitCamera(Camera*) override {}
    void visitAttachable(Attachable*) override {}
    void visitNode(Node*) override {}
    void releaseModel(Model* model) override { registry.erase(model); }
    void releaseCamera(Camera*) override {}
    void releaseAttachable(Attachable*) override {}
    void releaseNode(Node*) override {}

    /// Draws every caster of the registry, as triangles whatever its primitive type, into the framebuffer and viewport that are set.
    void render();

    /// The registered models that cast shadows, in registry order.
    std::vector<Model*> casters() const;

    /// Draws these casters only, likewise.
    static void draw(const std::vector<Model*>& models);

private:
    std::set<Model*> registry; // borrowed
};
