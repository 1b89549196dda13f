#include "gpu/DrawCalls.h"

#include "gpu/IndexBuffer.h"
#include "gpu/Shaderprogram.h"
#include "gpu/VertexBuffer.h"

bool isReadyToDraw(GLenum mode)
{
    const Shaderprogram* program = Shaderprogram::current();
    return program && program->acceptsMode(mode);
}

void drawVertexArray(GLuint vao, GLenum mode, const VertexBuffer* vertices, const IndexBuffer* indices)
{
    if (vao == 0 || !(vertices || indices) || !isReadyToDraw(mode)) return;

    glBindVertexArray(vao);
    if (indices) {
        indices->bind();
        glDrawElements(mode, static_cast<GLsizei>(indices->getCount()), GL_UNSIGNED_SHORT, nullptr);
    } else {
        glDrawArrays(mode, 0, static_cast<GLsizei>(vertices->getVertexCount()));
    }
    glBindVertexArray(0);
}

void deleteVertexArray(GLuint vao)
{
    glDeleteVertexArrays(1, &vao);
}
