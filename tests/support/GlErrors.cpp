#include "support/GlErrors.h"

#include <GL/glew.h>
#include <gtest/gtest.h>

namespace {

GlMessages* collector = nullptr;

void GLAPIENTRY onMessage(GLenum source, GLenum type, GLuint, GLenum, GLsizei, const GLchar* message, const void*)
{
    if (collector && (source == GL_DEBUG_SOURCE_SHADER_COMPILER || !collector->ofTheCompilerOnly))
        collector->messages.emplace_back(message);
    else if (type == GL_DEBUG_TYPE_ERROR) ADD_FAILURE() << "OpenGL error: " << message;
}

} // namespace

void failTestsOnGlErrors()
{
    glEnable(GL_DEBUG_OUTPUT);
    glEnable(GL_DEBUG_OUTPUT_SYNCHRONOUS);
    glDebugMessageCallback(onMessage, nullptr);
}

GlMessages::GlMessages(bool compilerOnly) : ofTheCompilerOnly(compilerOnly)
{
    collector = this;
}

GlMessages::~GlMessages()
{
    collector = nullptr;
}
