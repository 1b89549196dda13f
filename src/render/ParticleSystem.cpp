#include "render/ParticleSystem.h"

#include "assets/Library.h"
#include "base/FrameTimer.h"
#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"

#include <vector>

namespace {

constexpr unsigned kParticles = 100;
constexpr std::size_t kBlockFloats = 800; // in the block that both buffers start with: 3200 bytes
constexpr std::size_t kRecordFloats = 8;  // in a record of that block
constexpr std::size_t kRecordOne = 7;     // the float of a record that starts at one; the others start at zero
constexpr GLuint kBinding = 0;            // vertex buffer binding point

VertexAttributeList particleLayout()
{
    VertexAttributeList layout;
    layout.addAttribute({ATTRIBUTE_VEC3, "position"});
    layout.addAttribute({ATTRIBUTE_FLOAT, "ttl"});
    layout.addAttribute({ATTRIBUTE_VEC3, "velocity"});
    return layout;
}

std::vector<float> startingBlock()
{
    std::vector<float> block(kBlockFloats, 0.0f);
    for (std::size_t at = kRecordOne; at < block.size(); at += kRecordFloats) block[at] = 1.0f;
    return block;
}

} // namespace

ParticleSystem::ParticleSystem(Shaderprogram* movementProgram)
    : format(particleLayout()), movement(movementProgram), renderBuffer(&format, kParticles),
      feedbackBuffer(&format, kParticles)
{
    setCullable(false);
    blended = true;
    castsShadow = false;
    renderOrder = 1;
    drawMode = GL_POINTS;
    shader = Library::getInstance()->getShaderprogram("ParticleRender");
    setVertexBuffer(&renderBuffer);
    bindUniforms({});

    const std::vector<float> block = startingBlock();
    feedbackBuffer.setData(block.size(), block.data(), GL_STREAM_DRAW);
    renderBuffer.setData(block.size(), block.data(), GL_STREAM_DRAW);

    if (movement) {
        movement->setFeedbackOutputs({"vPosition", "vTtl", "vVelocity"});
        movement->link();
    }
    createVAO(&format);
}

void ParticleSystem::update()
{
    if (!movementVertexArray)
        movementVertexArray = GlObject(GlKind::VertexArray, format.createVAO(movement, &feedbackBuffer));
    if (!movementVertexArray) return;
    glBindVertexArray(movementVertexArray);
    movement->use();
    movement->setUniform("Time", gameDelta());
    movement->setUniform("emitter_pos", emitterPosition);
    if (isReadyToDraw(GL_POINTS)) advance();
    Shaderprogram::unuse();
    glBindVertexArray(0);
}

void ParticleSystem::advance()
{
    glEnable(GL_RASTERIZER_DISCARD);
    renderBuffer.bindVertexBuffer(kBinding, 0, static_cast<GLsizei>(renderBuffer.getStride()));
    feedbackBuffer.bindFeedback(0);
    glBeginTransformFeedback(GL_POINTS);
    glDrawArrays(GL_POINTS, 0, static_cast<GLsizei>(feedbackBuffer.getVertexCount()));
    glEndTransformFeedback();
    renderBuffer.swapStorage(feedbackBuffer);
    glDisable(GL_RASTERIZER_DISCARD);
}

void ParticleSystem::draw()
{
    if (vao == 0 || !isReadyToDraw(drawMode)) return;
    glDepthMask(GL_FALSE);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glBindVertexArray(vao);
    renderBuffer.bindVertexBuffer(kBinding, 0, static_cast<GLsizei>(renderBuffer.getStride()));
    glDrawArrays(drawMode, 0, static_cast<GLsizei>(renderBuffer.getVertexCount()));
    glBindVertexArray(0);
    glDepthMask(GL_TRUE);
}
