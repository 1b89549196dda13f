#pragma once

#include "render/Framebuffer.h"
#include "render/FullScreenQuad.h"
#include "render/TargetTexture.h"

/// The two full-screen passes at the end of a frame: "Blur" from the scene's targets into its own colour texture,
/// "CelPostProc" from there into the window. Owned by the renderer, which calls them in this order while isUsable(),
/// and showUnprocessed() otherwise.
class PostProcessing {
public:
    explicit PostProcessing(glm::ivec2 windowSize); ///< pixels

    /// Return whether the library has both programs, linked.
    bool isUsable() const;

    /// Draw the first pass. milliseconds: the current time, which the program gets as its uniform "offset".
    void blur(const TargetTexture& sceneColour, const TargetTexture& sceneDepth, const TargetTexture& lightDepth,
        double milliseconds) const;

    /// Draw the second pass.
    void celPostProc() const;

    /// Copy the scene into the window as it is.
    void showUnprocessed(const Framebuffer& scene) const;

private:
    TargetTexture blurColour;
    Framebuffer blurFramebuffer;
    FullScreenQuad quad;
};
