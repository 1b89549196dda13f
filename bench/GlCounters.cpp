#include "GlCounters.h"

#include <GL/glew.h>
#include <GLFW/glfw3.h>

namespace {

long draws = 0, lookUps = 0;

/// Put a function that counts in the place of one of GLEW's pointers.
template <auto& entryPoint, long& counter, class Result, class... Arguments>
void divert(Result (*original)(Arguments...))
{
    static const auto driver = original;
    if (!driver) return; // this driver has no such call
    entryPoint = [](Arguments... arguments) -> Result {
        ++counter;
        return driver(arguments...);
    };
}

template <auto&... entryPoints>
void countAsDraws()
{
    (divert<entryPoints, draws>(entryPoints), ...);
}

} // namespace

void countGlCalls()
{
    countAsDraws<__glewDrawArraysIndirect, __glewDrawArraysInstanced, __glewDrawArraysInstancedBaseInstance,
        __glewDrawElementsBaseVertex, __glewDrawElementsIndirect, __glewDrawElementsInstanced,
        __glewDrawElementsInstancedBaseInstance, __glewDrawElementsInstancedBaseVertex,
        __glewDrawElementsInstancedBaseVertexBaseInstance, __glewDrawRangeElements, __glewDrawRangeElementsBaseVertex,
        __glewDrawTransformFeedback, __glewDrawTransformFeedbackInstanced, __glewDrawTransformFeedbackStream,
        __glewDrawTransformFeedbackStreamInstanced, __glewMultiDrawArrays, __glewMultiDrawArraysIndirect,
        __glewMultiDrawElements, __glewMultiDrawElementsBaseVertex, __glewMultiDrawElementsIndirect>();
    divert<__glewGetUniformLocation, lookUps>(__glewGetUniformLocation);
}

GlCounts glCounts()
{
    return {draws, lookUps};
}

WithoutDriver::WithoutDriver() : window(glfwGetCurrentContext())
{
    glfwMakeContextCurrent(nullptr);
}

WithoutDriver::~WithoutDriver()
{
    glfwMakeContextCurrent(window);
}

// The calls of OpenGL 1.1 and GLFW's are no pointers but symbols, which the linker's --wrap leads here.
extern "C" {

void __real_glDrawArrays(GLenum mode, GLint first, GLsizei count);
void __real_glDrawElements(GLenum mode, GLsizei count, GLenum type, const void* indices);
void __real_glfwSwapBuffers(GLFWwindow* window);

void __wrap_glDrawArrays(GLenum mode, GLint first, GLsizei count)
{
    ++draws;
    __real_glDrawArrays(mode, first, count);
}

void __wrap_glDrawElements(GLenum mode, GLsizei count, GLenum type, const void* indices)
{
    ++draws;
    __real_glDrawElements(mode, count, type, indices);
}

void __wrap_glfwSwapBuffers(GLFWwindow* window)
{
    if (glfwGetCurrentContext()) __real_glfwSwapBuffers(window);
}
}
