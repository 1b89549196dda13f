#include "RenderFixture.h"

#include "assets/BallModel.h"
#include "gpu/DrawCalls.h"
#include "gpu/Shader.h"
#include "gpu/Texture.h"
#include "gpu/VertexAttributeList.h"
#include "gpu/VertexBuffer.h"
#include "render/DebugRenderer.h"
#include "render/Framebuffer.h"
#include "render/FullScreenQuad.h"
#include "render/TextRenderer.h"

#include <GLFW/glfw3.h>

namespace {

/// One of each kind that owns GL objects.
struct Owners {
    Owners()
    {
        program.attachShader(&stage);
        program.link();
        program.use();
        program.setUniform("absent", UniformVariant()); // a null source
        texture.load("Textures/font.tga");
        layout.addAttribute({ATTRIBUTE_VEC3, "absent"});
        deleteVertexArray(layout.createVAO(&program, &vertices)); // an attribute that the program lacks is left out
    }

    Shader stage{GL_VERTEX_SHADER, "#version 430 core\nvoid main() { gl_Position = vec4(0); }\n"};
    Shaderprogram program;
    Texture texture;
    TargetTexture target{GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, glm::ivec2(4)};
    Framebuffer framebuffer{&target, nullptr};
    FullScreenQuad quad;
    TextRenderer text;
    VertexAttributeList layout;
    VertexBuffer vertices{&layout, 1};
    BallModel ball{nullptr, glm::vec4(1)};
    DebugRenderer overlay;
};

int objectCount()
{
    Shaderprogram::unuse(); // a program in use outlives its deletion
    int count = 0;
    for (GLuint name = 1; name < 3000; ++name) // more than there are
        for (const auto is : {glIsBuffer, glIsFramebuffer, glIsProgram, glIsShader, &glIsTexture, glIsVertexArray})
            count += is(name);
    return count;
}

TEST_F(RenderTest, GlObjectsGoWithTheirOwnersAndAreLeftAloneOnceTheirContextHasGone)
{
    BallModel ball(nullptr, glm::vec4(1)); // makes the sphere that all share
    const int before = objectCount();
    auto owners = std::make_unique<Owners>();
    const int most = objectCount();
    EXPECT_GT(most, before + 10);
    owners.reset();
    EXPECT_EQ(objectCount(), before);

    owners = std::make_unique<Owners>();
    GLFWwindow* const window = glfwGetCurrentContext();
    glfwMakeContextCurrent(nullptr);
    owners.reset(); // the test fails at any call of OpenGL
    EXPECT_EQ(Shaderprogram::current(), nullptr);
    glfwMakeContextCurrent(window);
    EXPECT_EQ(objectCount(), most);
}

} // namespace
