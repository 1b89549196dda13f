#include "gpu/GlObject.h"

#include "platform/AppWindow.h"

GlObject::GlObject(GlKind objectKind) : kind(objectKind)
{
    switch (kind) {
    case GlKind::Buffer: glGenBuffers(1, &name); break;
    case GlKind::Framebuffer: glGenFramebuffers(1, &name); break;
    case GlKind::Program: name = glCreateProgram(); break;
    case GlKind::Shader: break;
    case GlKind::Texture: glGenTextures(1, &name); break;
    case GlKind::VertexArray: glGenVertexArrays(1, &name); break;
    }
}

GlObject::~GlObject()
{
    if (name == 0 || !AppWindow::hasContext()) return;
    switch (kind) {
    case GlKind::Buffer: glDeleteBuffers(1, &name); break;
    case GlKind::Framebuffer: glDeleteFramebuffers(1, &name); break;
    case GlKind::Program: glDeleteProgram(name); break;
    case GlKind::Shader: glDeleteShader(name); break;
    case GlKind::Texture: glDeleteTextures(1, &name); break;
    case GlKind::VertexArray: glDeleteVertexArrays(1, &name); break;
    }
}
