#pragma once

#include "render/Framebuffer.h"
#include "render/PostProcessing.h"
#include "render/ShadowCache.h"
#include "render/TargetTexture.h"

/// What frames are drawn into besides the window, created with a current context and made anew with every size of the
/// window.
struct RenderTargets {
    explicit RenderTargets(glm::ivec2 windowSize); ///< pixels

    TargetTexture sceneColour;
    TargetTexture sceneDepth;
    TargetTexture lightDepth;
    Framebuffer light;
    Framebuffer scene;
    PostProcessing post;
    ShadowCache shadowCache;
};
