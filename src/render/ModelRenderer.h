#pragma once

#include "render/ModelRegistry.h"

#include <vector>

class Camera;
class Model;
class Renderer;

/// Draws the scene's models into one viewport, with what shaders need to look up the shadows. Owned by the renderer,
/// which walks the scene with it before each render(): the walk only adds models, releaseModel withdraws one.
class ModelRenderer final : public ModelRegistry {
public:
    explicit ModelRenderer(Renderer* owner) : renderer(owner) {}

    /// Draw what the camera may see, by render order, into the framebuffer and viewport that are set. Return the
    /// number of models left out.
    unsigned render(Camera* camera);

private:
    std::vector<Model*> sorted() const;
    void drawModel(Model& model);

    Renderer* renderer;
};
