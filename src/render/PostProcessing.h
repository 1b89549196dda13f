#pragma once

#include "render/Framebuffer.h"
#include "render/FullScreenQuad.h"
#include "render/TargetTexture.h"

/// The two full-screen passes at the end of a frame: "Blur" from the scene's targets into its own colour texture, "CelPostProc" from
/// there into the window. Owned by the renderer.
class PostProcessing {
public:
    explicit PostProcessing(glm::ivec2 windowSize); ///< pixels

    /// milliseconds: the current time, which moves what the pass animates.
    void blur(const TargetTexture& sceneColour, const TargetTexture& sceneDepth, const TargetTexture& lightDepth, double milliseconds) const;

    void celPostProc() const;

private:
    TargetTexture blurColour;
    Framebuffer blurFramebuffer;
    FullScreenQuad quad;
};
