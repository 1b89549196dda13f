#pragma once

#include "assets/Model.h"
#include "gpu/VertexAttributeList.h"
#include "gpu/VertexBuffer.h"

#include <glm/glm.hpp>

/// Exhaust smoke whose particles live on the GPU only: update() advances them by transform feedback, from the render
/// buffer into the feedback buffer, and swaps the two; draw() draws the render buffer as blended points. Owned by the
/// player it follows.
class ParticleSystem final : public Model {
public:
    /// The movement program is borrowed; null, or one that did not link, leaves the particles where they are.
    explicit ParticleSystem(Shaderprogram* movementProgram);

    /// Set the point in the world where particles begin. The owner does so each frame.
    void setEmitterPosition(const glm::vec3& position) { emitterPosition = position; }

    void update() override; ///< advance the particles by one step of game time
    void draw() override;

private:
    void advance();

    VertexAttributeList format;
    Shaderprogram* movement;
    VertexBuffer renderBuffer;
    VertexBuffer feedbackBuffer;
    GlObject movementVertexArray; // empty while the movement program is broken
    glm::vec3 emitterPosition{0.0f};
};
