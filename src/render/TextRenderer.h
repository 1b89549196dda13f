#pragma once

#include "gpu/GLBuffer.h"

#include <string>
#include <vector>

class Shaderprogram;
class Texture;

/// Draws lines of monospaced text from a bitmap font of 16 x 16 glyph cells, in normalised device coordinates of the
/// whole window.
///
/// Owned by the renderer. Once a pass: clear(), any number of addText(), one render(). The queue is kept on the CPU and
/// uploaded whole with every addText.
class TextRenderer {
public:
    TextRenderer();

    void setShader(Shaderprogram* program) { shader = program; } ///< borrowed; null draws nothing
    void setFont(Texture* texture) { font = texture; }           ///< borrowed; null draws nothing

    /// Queue the text with the lower-left corner of its first glyph at (x, y). Glyphs are 0.0625 wide and high; text
    /// never wraps.
    void addText(const std::string& text, double x, double y);

    void render(); ///< draw the queue, which stays
    void clear();  ///< empty the queue

    /// Take off the queue what came after its first so many vertices.
    void shorten(std::size_t vertices);

    struct vertex {
        GLfloat x, y; ///< normalised device coordinates
        GLfloat u, v; ///< texture coordinates; a glyph's top edge takes the smaller v
    };
    const std::vector<vertex>& getQueue() const { return queue; } ///< six vertices a character

private:
    Shaderprogram* shader = nullptr;
    Texture* font = nullptr;
    std::vector<vertex> queue;
    GlObject vertexArray{GlKind::VertexArray};
    GLBuffer vertexBuffer{GL_ARRAY_BUFFER};
};
