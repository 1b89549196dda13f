#pragma once

#include <GL/glew.h>

#include <utility>

enum class GlKind { Buffer, Framebuffer, Program, Shader, Texture, VertexArray };

/// Owns one GL object by its name and deletes it with itself. Where no context is current any more it deletes nothing:
/// a context takes its objects with it. Move-only; an empty or moved-from one has name 0. The base of every wrapper of
/// a GL object.
class GlObject {
public:
    GlObject() = default;

    /// Create an object of any kind but Shader, which needs a stage to be created for (glGen*, glCreateProgram).
    explicit GlObject(GlKind objectKind);

    /// Take over an object that is there already.
    GlObject(GlKind objectKind, GLuint objectName) : kind(objectKind), name(objectName) {}

    ~GlObject();
    GlObject(GlObject&& other) noexcept : kind(other.kind), name(std::exchange(other.name, 0)) {}
    GlObject& operator=(GlObject&& other) noexcept
    {
        std::swap(kind, other.kind);
        std::swap(name, other.name);
        return *this;
    }

    operator GLuint() const { return name; } ///< as GL calls take it; 0 when empty

private:
    GlKind kind = GlKind::Buffer;
    GLuint name = 0;
};
