#pragma once

#include <GL/glew.h>
#include <glm/glm.hpp>
#include <gtest/gtest.h>

/// A test with a real OpenGL 4.3 core debug context; any GL error fails it. All tests of a program share one window,
/// which the first opens. Each starts with no program in use, drawing into an off-screen picture of kSide x kSide
/// pixels, cleared to zeros, with face culling off.
class GlTest : public testing::Test {
protected:
    static constexpr int kSide = 64; // pixels

    GlTest();

    /// Return a pixel of the picture, each component 0 to 255; (0, 0) is at the lower left.
    static glm::ivec4 pixelAt(int x, int y);

    static GLint integer(GLenum what); ///< what glGetIntegerv says
};
