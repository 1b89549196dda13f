#include "render/TextRenderer.h"

#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"
#include "gpu/Texture.h"

#include <cstddef>

namespace {

constexpr float kGlyph = 0.0625f; // a sixteenth: a glyph's size on the screen and its cell's in the font
constexpr int kCellsPerRow = 16;

struct Cell {
    float u, v;
};

Cell cellOf(char character)
{
    if (character == ' ') return {0.0f, 6 * kGlyph};
    const int index = static_cast<signed char>(character) - '!';
    const int column = index % kCellsPerRow, row = index / kCellsPerRow; // both truncate towards 0
    return {static_cast<float>(column) * kGlyph, static_cast<float>(row) * kGlyph};
}

} // namespace

TextRenderer::TextRenderer()
{
    glBindVertexArray(vertexArray);
    vertexBuffer.bind();
    glEnableVertexAttribArray(0);
    glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, sizeof(vertex), nullptr);
    glEnableVertexAttribArray(1);
    glVertexAttribPointer(1, 2, GL_FLOAT, GL_FALSE, sizeof(vertex), reinterpret_cast<const void*>(offsetof(vertex, u)));
    glBindVertexArray(0);
    vertexBuffer.unbind();
}

void TextRenderer::addText(const std::string& text, double x, double y)
{
    const auto bottom = static_cast<float>(y);
    const float top = bottom + kGlyph;
    for (std::size_t k = 0; k < text.size(); ++k) {
        const float left = static_cast<float>(x) + static_cast<float>(k) * kGlyph, right = left + kGlyph;
        const auto [u, v] = cellOf(text[k]);
        const float u1 = u + kGlyph, v1 = v + kGlyph;
        queue.insert(queue.end(),
            {
                {left, top, u, v},
                {right, bottom, u1, v1},
                {left, bottom, u, v1},
                {left, top, u, v},
                {right, top, u1, v},
                {right, bottom, u1, v1},
            });
    }
    if (!queue.empty()) vertexBuffer.setData(queue.size(), queue.data(), GL_STATIC_DRAW);
}

void TextRenderer::render()
{
    if (!shader || !font) return;
    glBindVertexArray(vertexArray);
    shader->use();
    shader->setUniform("tex", font, 0);
    if (isReadyToDraw(GL_TRIANGLES)) glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(queue.size()));
    Shaderprogram::unuse();
    glBindVertexArray(0);
}

void TextRenderer::shorten(std::size_t vertices)
{
    if (vertices < queue.size()) queue.resize(vertices);
}

void TextRenderer::clear()
{
    queue.clear();
}
