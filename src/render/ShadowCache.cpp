#include "render/ShadowCache.h"

#include "assets/Library.h"
#include "assets/Model.h"
#include "gpu/Shaderprogram.h"
#include "render/Light.h"
#include "render/ShadowMappingRender.h"
#include "scene/Node.h"

#include <algorithm>

namespace {

constexpr float kMarginTexels = 2; // around what a caster covers, for rounding

/// Return a number that changes with every reload of the program; 0 when there is none to draw with.
unsigned depthProgramVersion()
{
    const Shaderprogram* program = Library::getInstance()->getShaderprogram("ShadowDepth", false);
    return program && program->isUsable() ? program->getLinkCount() : 0;
}

} // namespace

ShadowCache::ShadowCache(const TargetTexture& lightDepthTexture, const Framebuffer& lightFramebuffer)
    : lightTexture(lightDepthTexture), light(lightFramebuffer),
      staticTexture(GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT, GL_FLOAT, lightDepthTexture.getSize()),
      staticFramebuffer(nullptr, &staticTexture)
{
}

void ShadowCache::draw(const ShadowMappingRender& shadows)
{
    std::vector<Model*> still = shadows.casters();
    const auto firstMoving =
        std::stable_partition(still.begin(), still.end(), [](const Model* model) { return model->isStatic; });
    const std::vector<Model*> moving(firstMoving, still.end());
    still.erase(firstMoving, still.end());

    drawStatic(still);
    if (!valid) touched = {wholeTexture()};
    for (const Rect& rect : touched) restore(rect);
    valid = true;

    touched = coveredBy(moving);
    target(light);
    ShadowMappingRender::draw(moving);
}

/// Return one rectangle a model, or the whole texture when the bounds of any are unknown.
std::vector<ShadowCache::Rect> ShadowCache::coveredBy(const std::vector<Model*>& models) const
{
    std::vector<Rect> rects;
    for (const Model* model : models) {
        if (model->boundingRadius <= 0) return {wholeTexture()};
        rects.push_back(coveredBy(*model));
    }
    return rects;
}

void ShadowCache::drawStatic(const std::vector<Model*>& casters)
{
    std::vector<Snapshot> now;
    now.reserve(casters.size());
    for (const Model* model : casters) now.push_back({model, model->vao, model->getNode()->getWorldTransform()});
    const unsigned program = depthProgramVersion();
    if (valid && now == drawnStatic && program == drawnWith) return;

    target(staticFramebuffer);
    glClear(GL_DEPTH_BUFFER_BIT);
    ShadowMappingRender::draw(casters);
    drawnStatic = std::move(now);
    drawnWith = program;
    valid = false;
}

void ShadowCache::restore(const Rect& rect) const
{
    if (rect.width <= 0 || rect.height <= 0) return;
    glCopyImageSubData(staticTexture.getHandle(), GL_TEXTURE_2D, 0, rect.x, rect.y, 0, lightTexture.getHandle(),
        GL_TEXTURE_2D, 0, rect.x, rect.y, 0, rect.width, rect.height, 1);
}

ShadowCache::Rect ShadowCache::wholeTexture() const
{
    return {0, 0, lightTexture.getSize().x, lightTexture.getSize().y};
}

ShadowCache::Rect ShadowCache::coveredBy(const Model& model) const
{
    // The light's projection is orthographic: the sphere becomes an ellipsoid, which reaches as far along a texture
    // axis as the row of that axis is long, however the node's transform scales and shears.
    const glm::mat4 toTexture = biasedLightViewProjection() * model.getNode()->getWorldTransform();
    const glm::mat4 rows = glm::transpose(toTexture);
    const glm::vec2 size(lightTexture.getSize());
    const glm::vec2 centre = glm::vec2(toTexture[3]) * size;
    const glm::vec2 reach =
        model.boundingRadius * glm::vec2(glm::length(glm::vec3(rows[0])), glm::length(glm::vec3(rows[1]))) * size;
    const glm::vec2 low = glm::clamp(glm::floor(centre - reach) - kMarginTexels, glm::vec2(0), size);
    const glm::vec2 high = glm::clamp(glm::ceil(centre + reach) + kMarginTexels, glm::vec2(0), size);
    return {static_cast<int>(low.x), static_cast<int>(low.y), static_cast<int>(high.x - low.x),
        static_cast<int>(high.y - low.y)};
}

void ShadowCache::target(const Framebuffer& framebuffer) const
{
    framebuffer.bind();
    glViewport(0, 0, lightTexture.getSize().x, lightTexture.getSize().y);
    glScissor(0, 0, lightTexture.getSize().x, lightTexture.getSize().y);
}
