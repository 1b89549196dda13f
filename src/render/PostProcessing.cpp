#include "render/PostProcessing.h"

#include "assets/Library.h"
#include "gpu/Shaderprogram.h"

namespace {

constexpr const char* kBlur = "Blur";
constexpr const char* kCelPostProc = "CelPostProc";
constexpr double kOffsetPeriod = 500.0; // milliseconds in which the uniform "offset" grows by one

void clearTarget()
{
    glClearColor(0.2f, 0.3f, 0.5f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

/// Return the program of that name; null unless it is linked.
Shaderprogram* programNamed(const char* name)
{
    Shaderprogram* program = Library::getInstance()->getShaderprogram(name, false);
    return program && program->isUsable() ? program : nullptr;
}

} // namespace

PostProcessing::PostProcessing(glm::ivec2 windowSize)
    : blurColour(GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, windowSize), blurFramebuffer(&blurColour, nullptr)
{
}

bool PostProcessing::isUsable() const
{
    return programNamed(kBlur) && programNamed(kCelPostProc);
}

void PostProcessing::showUnprocessed(const Framebuffer& scene) const
{
    const glm::ivec2 size = blurColour.getSize();
    glBindFramebuffer(GL_READ_FRAMEBUFFER, scene.getHandle());
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
    glBlitFramebuffer(0, 0, size.x, size.y, 0, 0, size.x, size.y, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

void PostProcessing::blur(const TargetTexture& sceneColour, const TargetTexture& sceneDepth,
    const TargetTexture& lightDepth, double milliseconds) const
{
    blurFramebuffer.bind();
    clearTarget();
    Shaderprogram* program = programNamed(kBlur);
    program->use();
    program->setSampler("fbo_texture", sceneColour.getHandle(), 0);
    program->setSampler("depth_texture", sceneDepth.getHandle(), 1);
    program->setSampler("light_depth_texture", lightDepth.getHandle(), 2);
    program->setUniform("offset", static_cast<float>(milliseconds / kOffsetPeriod));
    quad.draw(*program);
}

void PostProcessing::celPostProc() const
{
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    clearTarget();
    Shaderprogram* program = programNamed(kCelPostProc);
    program->use();
    program->setUniform("window", glm::vec3(blurColour.getSize(), 0));
    program->setSampler("fbo_texture", blurColour.getHandle(), 0);
    quad.draw(*program);
}
