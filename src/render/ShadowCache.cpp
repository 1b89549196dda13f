#include "render/ShadowCache.h"

#include "assets/Library.h"
#include "assets/Model.h"
#include "gpu/Shaderprogram.h"
#include "render/Light.h"
#include "render/ShadowMappingRender.h"
#include "scene/Node.h"

#include <algorithm>
#include <functional>
#include <iterator>

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

bool ShadowCache::Rect::contains(const Rect& other) const
{
    return x <= other.x && y <= other.y && x + width >= other.x + other.width && y + height >= other.y + other.height;
}

bool ShadowCache::Rect::touches(const Rect& other) const
{
    return x < other.x + other.width && other.x < x + width && y < other.y + other.height && other.y < y + height;
}

bool ShadowCache::mayReach(const glm::mat4& toWorld, const glm::vec3& min, const glm::vec3& max) const
{
    if (!valid) return true;
    const glm::mat4 toTexture = biasedLightViewProjection() * toWorld;
    const glm::vec4 centre = toTexture * glm::vec4((min + max) / 2.0f, 1);
    const glm::vec3 half = (max - min) / 2.0f;
    const glm::vec3 reach =
        glm::abs(toTexture[0] * half.x) + glm::abs(toTexture[1] * half.y) + glm::abs(toTexture[2] * half.z);
    const Rect rect = rectAround(centre, reach);
    const auto isTouched = [&](const Rect& shadow) { return shadow.touches(rect); };
    return std::ranges::any_of(touched, isTouched) || std::ranges::any_of(stillThings, isTouched);
}

/// Return rectangles that hold what the models cover; the whole texture when the bounds of any are unknown.
std::vector<ShadowCache::Rect> ShadowCache::coveredBy(const std::vector<Model*>& models) const
{
    std::vector<Rect> rects;
    for (const Model* model : models) {
        if (model->boundingRadius <= 0) return {wholeTexture()};
        rects.push_back(coveredBy(*model));
    }
    // A car's wheels mostly lie within what its driver covers.
    std::ranges::stable_sort(rects, std::greater(), [](const Rect& rect) { return rect.width * rect.height; });
    std::vector<Rect> result;
    for (const Rect& rect : rects) {
        if (std::ranges::none_of(result, [&](const Rect& larger) { return larger.contains(rect); }))
            result.push_back(rect);
    }
    return result;
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
    std::vector<Model*> things;
    std::ranges::copy_if(casters, std::back_inserter(things),
        [](const Model* model) { return model->layer == ModelLayer::Things; });
    stillThings = coveredBy(things);
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
    return rectAround(toTexture[3],
        model.boundingRadius * glm::vec2(glm::length(glm::vec3(rows[0])), glm::length(glm::vec3(rows[1]))));
}

ShadowCache::Rect ShadowCache::rectAround(const glm::vec2& centre, const glm::vec2& reach) const
{
    const glm::vec2 size(lightTexture.getSize());
    const glm::vec2 low = glm::clamp(glm::floor((centre - reach) * size) - kMarginTexels, glm::vec2(0), size);
    const glm::vec2 high = glm::clamp(glm::ceil((centre + reach) * size) + kMarginTexels, glm::vec2(0), size);
    return {static_cast<int>(low.x), static_cast<int>(low.y), static_cast<int>(high.x - low.x),
        static_cast<int>(high.y - low.y)};
}

void ShadowCache::target(const Framebuffer& framebuffer) const
{
    framebuffer.bind();
    glViewport(0, 0, lightTexture.getSize().x, lightTexture.getSize().y);
    glScissor(0, 0, lightTexture.getSize().x, lightTexture.getSize().y);
}
