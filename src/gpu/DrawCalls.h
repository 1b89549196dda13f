#pragma once

#include <GL/glew.h>

#include <vector>

class IndexBuffer;
class VertexBuffer;

// What modules below the renderer need of GL to draw. Drawing needs a current context and no more.

/// Return whether a draw in this mode would be valid now: a usable program is current and takes the mode. For callers
/// that issue their own draw.
bool isReadyToDraw(GLenum mode);

/// Draw with the current program: bind the vertex array, draw the whole index buffer (glDrawElements) or, when that is
/// null, every vertex of the vertex buffer (glDrawArrays), and bind no vertex array. Draw nothing unless
/// isReadyToDraw(mode), when vao is 0 or when both buffers are null.
void drawVertexArray(GLuint vao, GLenum mode, const VertexBuffer* vertices, const IndexBuffer* indices);

/// Draw stretches of the index buffer only, in one call (glMultiDrawElements): firsts and counts in indices. Otherwise
/// the same.
void drawVertexArrayRanges(GLuint vao, GLenum mode, const IndexBuffer& indices, const std::vector<GLsizei>& counts,
    const std::vector<unsigned>& firsts);
