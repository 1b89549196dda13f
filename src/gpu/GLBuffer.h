#pragma once

#include <GL/glew.h>

#include <cstddef>

/// A GL buffer object (glGenBuffers), tied to one target. Needs a current context from construction to destruction.
class GLBuffer {
public:
    explicit GLBuffer(GLenum bufferTarget);
    virtual ~GLBuffer();
    GLBuffer(const GLBuffer&) = delete;
    GLBuffer& operator=(const GLBuffer&) = delete;

    void bind() const;
    void unbind() const;

    /// Makes the buffer the source of a binding point of the bound vertex array; offset and stride in bytes.
    void bindVertexBuffer(GLuint bindingIndex, GLintptr offset, GLsizei stride) const;

    /// Makes the buffer the destination of transform feedback under that index (glBindBufferBase).
    void bindFeedback(GLuint index) const;

    /// Replaces the content by `count` elements; null data leaves it undefined. Leaves the target unbound.
    template <class T>
    void setData(std::size_t count, const T* data, GLenum usage)
    {
        elementSize = static_cast<int>(sizeof(T));
        store(count * sizeof(T), data, usage);
    }

    int getElementSize() const { return elementSize; } ///< bytes; 0 before the first setData()

    /// Exchanges the storage of two buffers, so that each names what the other one held.
    void swapStorage(GLBuffer& other) noexcept;

    GLuint getHandle() const { return buffer; }

protected:
    void store(std::size_t bytes, const void* data, GLenum usage);

private:
    int elementSize = 0;
    GLenum target;
    GLuint buffer = 0;
};
