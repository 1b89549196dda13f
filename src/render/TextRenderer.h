#pragma once

#include "gpu/GLBuffer.h"

#include <glm/glm.hpp>

#include <span>
#include <string>
#include <vector>

class Shaderprogram;
class Texture;

/// A line of a block and its number from the top; numbers that are left out stay empty.
struct TextLine {
    int number;
    std::string text;
};

/// Where a block of lines lies: normalised device coordinates of the whole window.
struct TextRoom {
    double x, y;             ///< the lower-left corner of line 0, were it not scaled; the upper-left one stays
    double right, bottom;    ///< what no line goes beyond
    glm::dvec2 unit{1, 1};   ///< the size of the view that it belongs to, as a share of the window's
    double leastScale = 0.0; ///< goes beyond rather than be smaller; 1 is unscaled
};

/// Draws lines of monospaced text from a bitmap font of 16 x 16 glyph cells, in normalised device coordinates of the
/// whole window.
///
/// Owned by the renderer. Once a pass: clear(), any number of additions, one render().
class TextRenderer {
public:
    static constexpr double kGlyph = 0.0625; ///< width and height of a glyph that is not scaled

    TextRenderer();

    void setShader(Shaderprogram* program) { shader = program; } ///< borrowed; null draws nothing
    void setFont(Texture* texture) { font = texture; }           ///< borrowed; null draws nothing
    void setScale(double factor) { scale = factor; }             ///< how large text would like to be; at least 1

    /// Return whether the font has a glyph for each byte of the text.
    static bool canWrite(const std::string& text);

    /// Queue the text with the lower-left corner of its first glyph at (x, y), scaled as far as it ends in the window;
    /// text never wraps.
    void addText(const std::string& text, double x, double y);

    /// Queue the text with glyphs of that size.
    void addText(const std::string& text, double x, double y, const glm::dvec2& glyph);

    /// Queue lines, one below the other, scaled as far as their room lets them.
    void addLines(std::span<const TextLine> lines, const TextRoom& room);

    /// Return whether nothing queued so far reaches into a rectangle.
    bool isFree(const glm::dvec2& low, const glm::dvec2& high) const;

    void render(); ///< draw the queue, which stays
    void clear();  ///< empty the queue

    /// Take off the queue what came after its first so many vertices.
    void shorten(std::size_t vertices);

    struct vertex {
        GLfloat x, y; ///< normalised device coordinates
        GLfloat u, v; ///< texture coordinates; a glyph's top edge takes the smaller v
    };
    const std::vector<vertex>& getQueue() const { return queue; } ///< six vertices a character
    double getScale() const { return scale; }

private:
    double scaleFor(std::span<const TextLine> lines, const TextRoom& room) const;

    Shaderprogram* shader = nullptr;
    Texture* font = nullptr;
    double scale = 1;
    std::vector<vertex> queue;
    GlObject vertexArray{GlKind::VertexArray};
    GLBuffer vertexBuffer{GL_ARRAY_BUFFER};
};
