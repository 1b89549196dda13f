#pragma once

#include "render/Framebuffer.h"
#include "render/PostProcessing.h"
#include "render/ShadowCache.h"
#include "render/TargetTexture.h"

/// What frames are drawn into besides the window, created once with a current context.
struct RenderTargets {
    static constexpr int kShadowMapScale = 4; ///< light depth texels a window pixel, in each direction

    explicit RenderTargets(glm::ivec2 windowSize) ///< pixels
        : sceneColour(GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, windowSize),
          sceneDepth(GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT, GL_UNSIGNED_SHORT, windowSize),
          lightDepth(GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT, GL_FLOAT, windowSize * kShadowMapScale),
          light(nullptr, &lightDepth), scene(&sceneColour, &sceneDepth), post(windowSize),
          shadowCache(lightDepth, light)
    {
    }

    TargetTexture sceneColour;
    TargetTexture sceneDepth;
    TargetTexture lightDepth;
    Framebuffer light;
    Framebuffer scene;
    PostProcessing post;
    ShadowCache shadowCache;
};
