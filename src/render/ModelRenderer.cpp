#include "render/ModelRenderer.h"

#include "assets/Model.h"
#include "gpu/Shaderprogram.h"
#include "platform/Keyboard.h"
#include "render/Light.h"
#include "render/Renderer.h"
#include "scene/Camera.h"
#include "scene/Node.h"

#include <GLFW/glfw3.h>

#include <algorithm>
#include <tuple>

namespace {

constexpr int kShadowUnit = 2; // texture unit

} // namespace

unsigned ModelRenderer::render(Camera* camera)
{
    const bool culling = !isKeyDown(GLFW_KEY_F8);
    unsigned culled = 0;
    const Shaderprogram* current = nullptr;
    for (Model* model : sorted()) {
        if (culling && model->cullable && !camera->isVisible(model->getNode()->getWorldPosition())) {
            ++culled;
            continue;
        }
        model->completeVAO();
        if (!model->isDrawable()) continue;
        if (model->shader != current) {
            current = model->shader;
            model->bindShader();
        }
        drawModel(*model);
    }
    Shaderprogram::unuse();
    return culled;
}

/// Return the models by render order; then near things before the ground and the ground before the sky, so that hidden
/// pixels are never shaded; then by program, so that consecutive models share it.
std::vector<Model*> ModelRenderer::sorted() const
{
    std::vector<Model*> models(registry.begin(), registry.end());
    std::ranges::sort(models, {},
        [](const Model* model) { return std::tuple(model->renderOrder, model->layer, model->shader); });
    return models;
}

void ModelRenderer::drawModel(Model& model)
{
    model.applyUniforms();
    model.shader->setUniform("depthVPMatrix", biasedLightViewProjection());
    model.shader->setSampler("shadow_texture", renderer->getLightDepthTexture(), kShadowUnit);
    if (model.blended) renderer->setBlending(true);
    model.draw();
    if (model.blended) renderer->setBlending(false);
}
