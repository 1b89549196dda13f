#include "RenderFixture.h"

#include "app/base/FrameTimer.h"
#include "gpu/Shader.h"
#include "render/ParticleSystem.h"

#include <GL/glew.h>

namespace {

struct Particle {
    glm::vec3 position;
    float ttl;
    glm::vec3 velocity;
    bool operator==(const Particle&) const = default;
};

std::vector<Particle> particlesOf(const ParticleSystem& system)
{
    std::vector<Particle> particles(100);
    glBindBuffer(GL_COPY_READ_BUFFER, system.getRenderBuffer().getHandle());
    glGetBufferSubData(GL_COPY_READ_BUFFER, 0, static_cast<GLsizeiptr>(particles.size() * sizeof(Particle)), particles.data());
    return particles;
}

Shaderprogram* realMovement()
{
    return Library::getInstance()->getShaderprogram("ParticleMovement");
}

class ParticleSystemTest : public RenderTest {
protected:
    void pass()
    {
        clock.sleep(0.02);
        FrameTimer::getInstance()->tick();
        graph.update();
    }
};

TEST_F(ParticleSystemTest, AfterKUpdatesTheKthStateIsThereAndDrawn)
{
    // A movement whose k-th state can be told: x grows by Time, ttl counts the steps, velocity repeats the emitter.
    Shaderprogram counting;
    Shader vertex(GL_VERTEX_SHADER,
        "#version 430 core\n"
        "in vec3 position; in float ttl; in vec3 velocity; uniform float Time; uniform vec3 emitter_pos;\n"
        "out vec3 vPosition; out float vTtl; out vec3 vVelocity;\n"
        "void main() { vPosition = position + vec3(Time, 0, 0); vTtl = ttl + 1.0; vVelocity = emitter_pos + 0.0 * velocity; }");
    counting.attachShader(&vertex);
    counting.link();
    ParticleSystem& system = add<ParticleSystem>(glm::mat4(1.0f), &counting);
    const std::vector<Particle> start = particlesOf(system);
    system.setEmitterPosition({1, 2, 3});
    for (int k = 1; k <= 5; ++k) {
        pass();
        const std::vector<Particle> state = particlesOf(system);
        for (std::size_t i = 0; i < state.size(); ++i) { // a step is three times the pass
            ASSERT_NEAR(state[i].position.x, start[i].position.x + 0.06f * static_cast<float>(k), 1e-5f);
            ASSERT_EQ(state[i].ttl, start[i].ttl + static_cast<float>(k));
            ASSERT_EQ(state[i].velocity, glm::vec3(1, 2, 3));
        }
        system.bindShader();
        system.draw();
        glBindVertexArray(system.vao);
        GLint drawn = 0;
        glGetIntegeri_v(GL_VERTEX_BINDING_BUFFER, 0, &drawn);
        glBindVertexArray(0);
        EXPECT_EQ(drawn, static_cast<GLint>(system.getRenderBuffer().getHandle())) << "after " << k << " updates";
        EXPECT_EQ(particlesOf(system), state) << "drawing moved the particles";
    }
    GLboolean writesDepth = GL_FALSE;
    glGetBooleanv(GL_DEPTH_WRITEMASK, &writesDepth);
    EXPECT_TRUE(writesDepth);
    EXPECT_FALSE(glIsEnabled(GL_RASTERIZER_DISCARD));
}

TEST_F(ParticleSystemTest, SmokeRisesNearItsEmitterForSixteenSystemsThatShareTheMovement)
{
    std::vector<ParticleSystem*> systems;
    for (int i = 0; i < 16; ++i) {
        systems.push_back(&add<ParticleSystem>(glm::mat4(1.0f), realMovement()));
        systems.back()->setEmitterPosition(glm::vec3(10 * i, 0, 0));
    }
    Library::getInstance()->loadShader("ParticleMovement", "Shader/ParticleMovement.shader"); // a reload keeps what is recorded
    for (int i = 0; i < 60; ++i) pass();
    for (std::size_t i = 0; i < systems.size(); ++i) {
        float height = 0;
        for (const Particle& particle : particlesOf(*systems[i])) {
            ASSERT_LT(glm::distance(particle.position, glm::vec3(10 * i, 0, 0)), 5.0f) << "system " << i;
            ASSERT_GT(particle.ttl, 0.0f);
            height += particle.position.y / 100;
        }
        EXPECT_GT(height, -0.4f) << "smoke is born half a unit below its emitter and rises";
    }
}

TEST_F(ParticleSystemTest, IsSeenOverTheSceneWithoutHidingAnythingLater)
{
    addBox(glm::scale(at(0, 0, -12), {10, 10, 1}), {0, 0, 1, 1}); // a wall
    ParticleSystem& smoke = add<ParticleSystem>(glm::mat4(1.0f), realMovement());
    Uniform_AttachableTransformation transformation(&smoke);
    smoke.bindCameraUniforms(false);
    smoke.uniforms["model"] = &transformation;
    smoke.setEmitterPosition({0, 0, -6});
    BoxModel& later = addBox(at(0, 0, -9), {0, 1, 0, 1}); // behind the smoke
    later.renderOrder = 2;
    addWholeWindow();
    for (int i = 0; i < 30; ++i) {
        clock.sleep(0.02);
        frame();
    }
    EXPECT_EQ(windowPixel(512, 384), glm::ivec4(0, 255, 0, 255)) << "the smoke wrote depth";

    later.getNode()->setTransform(at(0, 0, 50));
    int touched = 0; // of 100 samples in each of 30 passes
    for (int i = 0; i < 30; ++i) {
        clock.sleep(0.02);
        frame();
        for (int x = 462; x < 562; x += 10)
            for (int y = 334; y < 434; y += 10) touched += windowPixel(x, y) != glm::ivec4(0, 0, 255, 255);
    }
    EXPECT_GT(touched, 20) << "no smoke in front of the wall";
}

} // namespace
