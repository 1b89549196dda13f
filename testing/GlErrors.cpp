#include "testing/GlErrors.h"

#include <GL/glew.h>
#include <GLFW/glfw3.h>
#include <gtest/gtest.h>

namespace {

bool compilerErrorsExpected = false;

void GLAPIENTRY onMessage(GLenum source, GLenum type, GLuint, GLenum, GLsizei, const GLchar* message, const void*)
{
    const bool expected = compilerErrorsExpected && source == GL_DEBUG_SOURCE_SHADER_COMPILER;
    if (type == GL_DEBUG_TYPE_ERROR && !expected) ADD_FAILURE() << "OpenGL error: " << message;
}

template <class EntryPoint, class... Arguments>
void callWithContext(EntryPoint entryPoint, Arguments... arguments)
{
    if (glfwGetCurrentContext()) entryPoint(arguments...);
    else ADD_FAILURE() << "OpenGL is called without a context";
}

/// Put a guarded call in the place of one of GLEW's.
template <auto* kEntryPoint>
void guard()
{
    static const auto original = *kEntryPoint;
    *kEntryPoint = [](auto... arguments) { callWithContext(original, arguments...); };
}

} // namespace

/// The program calls this one: the GL library's own is no variable as GLEW's are.
void GLAPIENTRY glDeleteTextures(GLsizei count, const GLuint* names)
{
    const GLFWglproc original = glfwGetProcAddress("glDeleteTextures");
    callWithContext(reinterpret_cast<decltype(&glDeleteTextures)>(original), count, names);
}

void failTestsOnGlErrors()
{
    glEnable(GL_DEBUG_OUTPUT);
    glEnable(GL_DEBUG_OUTPUT_SYNCHRONOUS);
    glDebugMessageCallback(onMessage, nullptr);
    guard<&glDeleteBuffers>();
    guard<&glDeleteFramebuffers>();
    guard<&glDeleteProgram>();
    guard<&glDeleteShader>();
    guard<&glDeleteVertexArrays>();
    guard<&glUseProgram>();
}

CompilerErrorsExpected::CompilerErrorsExpected()
{
    compilerErrorsExpected = true;
}

CompilerErrorsExpected::~CompilerErrorsExpected()
{
    compilerErrorsExpected = false;
}
