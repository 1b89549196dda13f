#include "RenderFixture.h"

#include "assets/BallModel.h"
#include "gpu/Shader.h"
#include "gpu/Texture.h"
#include "render/DebugRenderer.h"
#include "render/Framebuffer.h"
#include "render/FullScreenQuad.h"
#include "render/ParticleSystem.h"
#include "render/TextRenderer.h"

#include <GLFW/glfw3.h>

#include <array>

namespace {

/// One of each that owns GL objects.
struct Owners {
    Owners()
    {
        program.attachShader(&stage);
        program.link();
        program.use();
        texture.load("Textures/font.tga");
    }

    Shader stage{GL_VERTEX_SHADER, "#version 430 core\nvoid main() { gl_Position = vec4(0); }\n"};
    Shaderprogram program;
    Texture texture;
    TargetTexture target{GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, glm::ivec2(4)};
    Framebuffer framebuffer{&target, nullptr};
    FullScreenQuad quad;
    TextRenderer text;
    ParticleSystem smoke{Library::getInstance()->getShaderprogram("ParticleMovement")};
    BallModel ball{nullptr, glm::vec4(1)};
    DebugRenderer overlay;
};

/// How many objects there are of each kind.
std::array<int, 6> census()
{
    constexpr GLuint kNames = 3000; // more than there are
    std::array<int, 6> counts{};
    for (GLuint name = 1; name < kNames; ++name) {
        const bool kinds[] = {
            glIsBuffer(name) == GL_TRUE,
            glIsFramebuffer(name) == GL_TRUE,
            glIsProgram(name) == GL_TRUE,
            glIsShader(name) == GL_TRUE,
            glIsTexture(name) == GL_TRUE,
            glIsVertexArray(name) == GL_TRUE,
        };
        for (std::size_t i = 0; i < counts.size(); ++i) counts[i] += kinds[i];
    }
    return counts;
}

TEST_F(RenderTest, GlObjectsGoWithTheirOwnersAndAreLeftAloneOnceTheirContextHasGone)
{
    auto owners = std::make_unique<Owners>(); // and the sphere that all balls share
    owners.reset();
    Shaderprogram::unuse();
    const auto before = census();
    owners = std::make_unique<Owners>();
    const auto most = census();
    for (std::size_t i = 0; i < most.size(); ++i) EXPECT_GT(most[i], before[i]) << "kind " << i;
    owners.reset();
    Shaderprogram::unuse();
    EXPECT_EQ(census(), before);

    owners = std::make_unique<Owners>();
    GLFWwindow* const window = glfwGetCurrentContext();
    glfwMakeContextCurrent(nullptr);
    owners.reset(); // a call of OpenGL would fail the test
    EXPECT_EQ(Shaderprogram::current(), nullptr);
    glfwMakeContextCurrent(window);
    EXPECT_EQ(census(), most);
}

} // namespace
