#include "render/TextRenderer.h"

#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"
#include "gpu/Texture.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr float kCell = 0.0625f; // a sixteenth: the size of a glyph's cell in the font
constexpr int kCellsPerRow = 16;
constexpr double kLineSpacing = 0.1; // from line to line, unscaled

struct Cell {
    float u, v;
};

Cell cellOf(char character)
{
    if (character == ' ') return {0.0f, 6 * kCell};
    const int index = static_cast<signed char>(character) - '!';
    const int column = index % kCellsPerRow, row = index / kCellsPerRow; // both truncate towards 0
    return {static_cast<float>(column) * kCell, static_cast<float>(row) * kCell};
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

bool TextRenderer::canWrite(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

void TextRenderer::addText(const std::string& text, double x, double y)
{
    const double fits = (1 - x) / (kGlyph * static_cast<double>(std::max<std::size_t>(text.size(), 1)));
    addText(text, x, y, glm::dvec2(kGlyph * std::max(1.0, std::min(scale, fits))));
}

void TextRenderer::addText(const std::string& text, double x, double y, const glm::dvec2& glyph)
{
    const glm::vec2 size(glyph);
    const auto bottom = static_cast<float>(y);
    const float top = bottom + size.y;
    for (std::size_t k = 0; k < text.size(); ++k) {
        const float left = static_cast<float>(x) + static_cast<float>(k) * size.x, right = left + size.x;
        const auto [u, v] = cellOf(text[k]);
        const float u1 = u + kCell, v1 = v + kCell;
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
}

void TextRenderer::addLines(std::span<const TextLine> lines, const TextRoom& room)
{
    const double size = scaleFor(lines, room);
    const double first = room.y + kGlyph * room.unit.y * (1 - size);
    for (const TextLine& line : lines)
        addText(line.text, room.x, first - line.number * kLineSpacing * room.unit.y * size, kGlyph * size * room.unit);
}

double TextRenderer::scaleFor(std::span<const TextLine> lines, const TextRoom& room) const
{
    double size = scale;
    for (const TextLine& line : lines) {
        const double width = kGlyph * room.unit.x * static_cast<double>(line.text.size());
        const double height = (kGlyph + line.number * kLineSpacing) * room.unit.y;
        if (width > 0) size = std::min(size, (room.right - room.x) / width);
        size = std::min(size, (room.y + kGlyph * room.unit.y - room.bottom) / height);
    }
    return std::max(size, room.leastScale);
}

bool TextRenderer::isFree(const glm::dvec2& low, const glm::dvec2& high) const
{
    constexpr std::size_t kVertices = 6, kTopLeft = 0, kBottomRight = 5; // of a glyph
    for (std::size_t i = 0; i < queue.size(); i += kVertices) {
        const vertex &topLeft = queue[i + kTopLeft], &bottomRight = queue[i + kBottomRight];
        if (topLeft.x < high.x && bottomRight.x > low.x && bottomRight.y < high.y && topLeft.y > low.y) return false;
    }
    return true;
}

void TextRenderer::render()
{
    if (!shader || !font) return;
    if (!queue.empty()) vertexBuffer.setData(queue.size(), queue.data(), GL_STATIC_DRAW);
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
