#include "render/FrameReader.h"

#include <GL/glew.h>

#include <string_view>

void FrameReader::stepDone(const char* step)
{
    // In wire frame the frame has no step after its text.
    GLint target = 0;
    glGetIntegerv(GL_READ_FRAMEBUFFER_BINDING, &target);
    if (target != 0 || step == std::string_view("swap")) return;

    const std::size_t row = 3 * static_cast<std::size_t>(width);
    pixels.resize(row * static_cast<std::size_t>(height));
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    for (int y = 0; y < height; ++y) // the window's rows count from below
        glReadPixels(0, height - 1 - y, width, 1, GL_RGB, GL_UNSIGNED_BYTE, &pixels[row * static_cast<std::size_t>(y)]);
}
