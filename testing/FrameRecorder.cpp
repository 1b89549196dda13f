#include "testing/FrameRecorder.h"

#include <GL/glew.h>

#include <algorithm>
#include <string>

void FrameRecorder::stepDone(const char* step)
{
    // Read before each swap; in wire frame the frame has no step after its text.
    GLint target = 0;
    glGetIntegerv(GL_READ_FRAMEBUFFER_BINDING, &target);
    if (target != 0 || step == std::string("swap")) return;

    constexpr int kWidth = 1024, kHeight = 768, kRowBytes = 3 * kWidth;
    picture = {kWidth, kHeight, std::vector<unsigned char>(std::size_t{kRowBytes} * kHeight)};
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    for (int y = 0; y < kHeight; ++y) { // the window's rows count from below
        glReadPixels(0, kHeight - 1 - y, kWidth, 1, GL_RGB, GL_UNSIGNED_BYTE,
            &picture.pixels[std::size_t{kRowBytes} * y]);
    }
}
