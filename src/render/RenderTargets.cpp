#include "render/RenderTargets.h"

#include "base/Logger.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float kShadowMapScale = 4;                         // light depth texels a window pixel, in each direction
constexpr float kMostShadowTexels = 64.0f * 1024 * 1024 / 4; // 64 MiB, at four bytes each

/// Return the size of the light depth texture: of the window's proportions, as fine as it may be.
glm::ivec2 shadowMapSize(const glm::vec2& window)
{
    GLint longest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &longest);
    const float byMemory = std::sqrt(kMostShadowTexels / (window.x * window.y));
    const float bySide = static_cast<float>(longest) / std::max(window.x, window.y);
    const float scale = std::min({kShadowMapScale, byMemory, bySide});
    const glm::ivec2 size(window * scale);
    if (scale < kShadowMapScale)
        logLine(2) << "The shadow map is cut to " << size.x << "x" << size.y << ": " << scale << " texels a pixel, not "
                   << kShadowMapScale << std::endl;
    return size;
}

} // namespace

RenderTargets::RenderTargets(glm::ivec2 windowSize)
    : sceneColour(GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, windowSize),
      sceneDepth(GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT, GL_UNSIGNED_SHORT, windowSize),
      lightDepth(GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT, GL_FLOAT, shadowMapSize(windowSize)),
      light(nullptr, &lightDepth), scene(&sceneColour, &sceneDepth), post(windowSize), shadowCache(lightDepth, light)
{
}
