#include "RenderFixture.h"

#include "base/FrameTimer.h"
#include "render/ParticleSystem.h"
#include "testing/Near.h"

#include <GL/glew.h>

namespace {

constexpr double kPass = 0.02; // seconds

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
    glGetBufferSubData(GL_COPY_READ_BUFFER, 0, static_cast<GLsizeiptr>(particles.size() * sizeof(Particle)),
        particles.data());
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
        clock.sleep(kPass);
        FrameTimer::getInstance()->tick();
        graph.update();
    }
};

TEST_F(ParticleSystemTest, SmokeMovesOneStepAnUpdateNearItsEmitterAndDrawingMovesNothing)
{
    std::vector<ParticleSystem*> systems;
    for (int i = 0; i < 16; ++i) {
        systems.push_back(&add<ParticleSystem>(glm::mat4(1.0f), realMovement()));
        systems.back()->setEmitterPosition(glm::vec3(10 * i, 0, 0));
    }
    Library::getInstance()->loadShader("ParticleMovement",
        "Shader/ParticleMovement.shader"); // a reload keeps what is recorded
    ParticleSystem& watched = *systems[3];
    for (int k = 0; k < 60; ++k) {
        const std::vector<Particle> before = particlesOf(watched);
        pass();
        const std::vector<Particle> now = particlesOf(watched);
        const float step = gameDelta();
        for (std::size_t i = 0; i < now.size(); ++i) {
            if (before[i].ttl <= step) continue; // newly born
            ASSERT_NEAR(now[i].ttl, before[i].ttl - step, 1e-5f) << "update " << k;
            ASSERT_TRUE(isNear(now[i].position, before[i].position + step * now[i].velocity)) << "update " << k;
        }
        for (int drawing = 0; drawing < 2; ++drawing) {
            watched.bindShader();
            watched.draw();
            glBindVertexArray(watched.vao);
            GLint drawn = 0;
            glGetIntegeri_v(GL_VERTEX_BINDING_BUFFER, 0, &drawn);
            glBindVertexArray(0);
            ASSERT_EQ(drawn, static_cast<GLint>(watched.getRenderBuffer().getHandle()));
            ASSERT_EQ(particlesOf(watched), now) << "drawing moved the particles";
        }
    }
    for (std::size_t i = 0; i < systems.size(); ++i) {
        float height = 0;
        for (const Particle& particle : particlesOf(*systems[i])) {
            ASSERT_LT(glm::distance(particle.position, glm::vec3(10 * i, 0, 0)), 5.0f) << "system " << i;
            height += particle.position.y / 100;
        }
        EXPECT_GT(height, -0.4f) << "smoke is born half a unit below its emitter and rises";
    }
}

TEST_F(ParticleSystemTest, IsSeenOverTheSceneWithoutHidingAnythingLater)
{
    addBox(glm::scale(at(0, 0, -12), {10, 10, 1}), {0, 0, 1, 1}); // a wall
    ParticleSystem& smoke = add<ParticleSystem>(glm::mat4(1.0f), realMovement());
    smoke.setEmitterPosition({0, 0, -6});
    BoxModel& later = addBox(at(0, 0, -9), {0, 1, 0, 1}); // behind the smoke
    later.renderOrder = 2;
    addWholeWindow();
    for (int i = 0; i < 30; ++i) {
        clock.sleep(kPass);
        frame();
    }
    EXPECT_EQ(windowPixel(512, 384), glm::ivec4(0, 255, 0, 255)) << "the smoke wrote depth";

    later.getNode()->setTransform(at(0, 0, 50));
    int touched = 0; // of 100 samples in each of 30 passes
    for (int i = 0; i < 30; ++i) {
        clock.sleep(kPass);
        frame();
        for (int x = 462; x < 562; x += 10)
            for (int y = 334; y < 434; y += 10) touched += windowPixel(x, y) != glm::ivec4(0, 0, 255, 255);
    }
    EXPECT_GT(touched, 20) << "no smoke in front of the wall";
}

} // namespace
