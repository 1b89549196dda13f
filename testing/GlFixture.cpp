#include "testing/GlFixture.h"

#include "gpu/Shaderprogram.h"
#include "platform/AppWindow.h"
#include "testing/GlErrors.h"

#include <stdexcept>

namespace {

AppWindow window;
bool windowOpened = false;
GLuint framebuffer = 0;

void openWindow(int side)
{
    if (!window.initialize() || !window.open(side, side, "test"))
        throw std::runtime_error("no OpenGL 4.3 core context; is there a display?");
    windowOpened = true;
    glewExperimental = GL_TRUE;
    if (glewInit() != GLEW_OK) throw std::runtime_error("glewInit failed");
    failTestsOnGlErrors();

    GLuint picture = 0;
    glGenTextures(1, &picture);
    glBindTexture(GL_TEXTURE_2D, picture);
    glTexStorage2D(GL_TEXTURE_2D, 1, GL_RGBA8, side, side);
    glBindTexture(GL_TEXTURE_2D, 0);
    glGenFramebuffers(1, &framebuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glFramebufferTexture(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, picture, 0);
}

/// Closes the window after the last test: the driver's threads must be gone before the process is.
class CloseWindow : public testing::Environment {
public:
    void TearDown() override
    {
        if (windowOpened) window.terminate();
    }
};

[[maybe_unused]] const testing::Environment* const closeWindow = testing::AddGlobalTestEnvironment(new CloseWindow);

} // namespace

GlTest::GlTest()
{
    if (!windowOpened) openWindow(kSide);
    Shaderprogram::unuse();
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, 0);
    glBindVertexArray(0);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_CULL_FACE);
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glViewport(0, 0, kSide, kSide);
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT);
}

glm::ivec4 GlTest::pixelAt(int x, int y)
{
    unsigned char pixel[4] = {};
    glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
    return {pixel[0], pixel[1], pixel[2], pixel[3]};
}

GLint GlTest::integer(GLenum what)
{
    GLint value = -1;
    glGetIntegerv(what, &value);
    return value;
}
