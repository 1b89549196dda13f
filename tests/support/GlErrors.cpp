#include "support/GlErrors.h"

#include <GL/glew.h>
#include <gtest/gtest.h>

namespace {

int compilerErrorsExpected = 0;
GlMessages* collector = nullptr;

void GLAPIENTRY onMessage(GLenum source, GLenum type, GLuint, GLenum, GLsizei, const GLchar* message, const void*)
{
    if (collector) {
        collector->messages.emplace_back(message);
        return;
    }
    if (type != GL_DEBUG_TYPE_ERROR) return;
    if (source == GL_DEBUG_SOURCE_SHADER_COMPILER && compilerErrorsExpected > 0) return;
    ADD_FAILURE() << "OpenGL error: " << message;
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
    ++compilerErrorsExpected;
}

CompilerErrorsExpected::~CompilerErrorsExpected()
{
    --compilerErrorsExpected;
}

GlMessages::GlMessages()
{
    collector = this;
}

GlMessages::~GlMessages()
{
    collector = nullptr;
}
