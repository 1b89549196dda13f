#include "testing/GlFixture.h"

#include "gpu/Shaderprogram.h"
#include "platform/AppWindow.h"
#include "testing/GlErrors.h"

#include <stdexcept>

namespace {

/// Closed after the last test: the driver's threads must be gone before the process is.
class SharedWindow : public testing::Environment {
public:
    void open(int side)
    {
        glewExperimental = GL_TRUE;
        if (!window.initialize() || !window.open({.size = {side, side}}, "test") || glewInit() != GLEW_OK)
            throw std::runtime_error("no OpenGL 4.3 core context; is there a display?");
        failTestsOnGlErrors();

        GLuint picture = 0;
        glGenTextures(1, &picture);
        glBindTexture(GL_TEXTURE_2D, picture);
        glTexStorage2D(GL_TEXTURE_2D, 1, GL_RGBA8, side, side);
        glGenFramebuffers(1, &framebuffer);
        glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
        glFramebufferTexture(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, picture, 0);
    }

    void TearDown() override { window.terminate(); }

    GLuint framebuffer = 0; ///< around the picture; 0 until the window is open

private:
    AppWindow window;
};

SharedWindow& shared = static_cast<SharedWindow&>(*testing::AddGlobalTestEnvironment(new SharedWindow));

} // namespace

GlTest::GlTest()
{
    if (shared.framebuffer == 0) shared.open(kSide);
    Shaderprogram::unuse();
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, 0);
    glDisable(GL_CULL_FACE);
    glBindFramebuffer(GL_FRAMEBUFFER, shared.framebuffer);
    glViewport(0, 0, kSide, kSide);
    glClear(GL_COLOR_BUFFER_BIT);
}

glm::ivec4 GlTest::pixelAt(int x, int y)
{
    glm::u8vec4 pixel(0);
    glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, &pixel);
    return pixel;
}

GLint GlTest::integer(GLenum what)
{
    GLint value = -1;
    glGetIntegerv(what, &value);
    return value;
}
