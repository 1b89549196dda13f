#include "testing/GlErrors.h"

#include <GL/glew.h>
#include <gtest/gtest.h>

namespace {

bool compilerErrorsExpected = false;

void GLAPIENTRY onMessage(GLenum source, GLenum type, GLuint, GLenum, GLsizei, const GLchar* message, const void*)
{
    const bool expected = compilerErrorsExpected && source == GL_DEBUG_SOURCE_SHADER_COMPILER;
    if (type == GL_DEBUG_TYPE_ERROR && !expected) ADD_FAILURE() << "OpenGL error: " << message;
}

} // namespace

void failTestsOnGlErrors()
{
    glEnable(GL_DEBUG_OUTPUT);
    glEnable(GL_DEBUG_OUTPUT_SYNCHRONOUS);
    glDebugMessageCallback(onMessage, nullptr);
}

CompilerErrorsExpected::CompilerErrorsExpected()
{
    compilerErrorsExpected = true;
}

CompilerErrorsExpected::~CompilerErrorsExpected()
{
    compilerErrorsExpected = false;
}
