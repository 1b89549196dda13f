#include "gpu/GLBuffer.h"

#include <utility>

void GLBuffer::bind() const
{
    glBindBuffer(target, buffer);
}

void GLBuffer::unbind() const
{
    glBindBuffer(target, 0);
}

void GLBuffer::bindVertexBuffer(GLuint bindingIndex, GLintptr offset, GLsizei stride) const
{
    glBindVertexBuffer(bindingIndex, buffer, offset, stride);
}

void GLBuffer::bindFeedback(GLuint index) const
{
    glBindBufferBase(GL_TRANSFORM_FEEDBACK_BUFFER, index, buffer);
}

void GLBuffer::store(std::size_t bytes, const void* data, GLenum usage)
{
    bind();
    glBufferData(target, static_cast<GLsizeiptr>(bytes), data, usage);
    unbind();
}

void GLBuffer::swapStorage(GLBuffer& other) noexcept
{
    std::swap(buffer, other.buffer);
}
