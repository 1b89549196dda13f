#pragma once

#include "gpu/GlObject.h"

#include <cstddef>

/// A GL buffer object, tied to one target and owned by whoever fills it.
class GLBuffer {
public:
    explicit GLBuffer(GLenum bufferTarget) : target(bufferTarget) {}
    virtual ~GLBuffer() = default;

    void bind() const;
    void unbind() const;

    /// Make the buffer the source of a binding point of the bound vertex array; offset and stride in bytes.
    void bindVertexBuffer(GLuint bindingIndex, GLintptr offset, GLsizei stride) const;

    /// Make the buffer the destination of transform feedback under that index (glBindBufferBase).
    void bindFeedback(GLuint index) const;

    /// Replace the content by `count` elements; null data leaves it undefined. Leave the target unbound.
    template <class T>
    void setData(std::size_t count, const T* data, GLenum usage)
    {
        elementSize = static_cast<int>(sizeof(T));
        store(count * sizeof(T), data, usage);
    }

    int getElementSize() const { return elementSize; } ///< bytes; 0 before the first setData()

    /// Exchange the storage of two buffers, so that each names what the other one held.
    void swapStorage(GLBuffer& other) noexcept;

    GLuint getHandle() const { return buffer; }

protected:
    void store(std::size_t bytes, const void* data, GLenum usage);

private:
    int elementSize = 0;
    GLenum target;
    GlObject buffer{GlKind::Buffer};
};
