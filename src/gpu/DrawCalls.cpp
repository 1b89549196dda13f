#include "gpu/DrawCalls.h"

#include "gpu/IndexBuffer.h"
#include "gpu/Shaderprogram.h"
#include "gpu/VertexBuffer.h"

#include <cstdint>

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

void drawVertexArrayRanges(GLuint vao, GLenum mode, const IndexBuffer& indices, const std::vector<GLsizei>& counts,
    const std::vector<unsigned>& firsts)
{
    if (vao == 0 || counts.empty() || !isReadyToDraw(mode)) return;

    std::vector<const void*> offsets; // bytes into the bound index buffer
    offsets.reserve(firsts.size());
    for (const unsigned first : firsts)
        offsets.push_back(reinterpret_cast<const void*>(static_cast<std::uintptr_t>(first * sizeof(GLushort))));
    glBindVertexArray(vao);
    indices.bind();
    glMultiDrawElements(mode, counts.data(), GL_UNSIGNED_SHORT, offsets.data(), static_cast<GLsizei>(counts.size()));
    glBindVertexArray(0);
}
