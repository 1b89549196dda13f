#include "app/PlayerLabels.h"

#include "players/PlayerLabel.h"
#include "render/Renderer.h"
#include "render/TextOptions.h"
#include "render/TextRenderer.h"
#include "scene/Camera.h"

#include <algorithm>

namespace {

// Shares of half the window's or the view's sides.
constexpr double kMargin = 0.05;
constexpr double kHighest = 0.9;

glm::dvec2 windowOf(const Renderer& renderer)
{
    return {renderer.getWidth(), renderer.getHeight()};
}

/// A view, as text is placed in it.
struct Area {
    Area(const Viewport::Rect& view, const glm::dvec2& window)
        : low(2.0 * glm::dvec2(view.x, view.y) / window - 1.0), unit(glm::dvec2(view.width, view.height) / window)
    {
    }

    glm::dvec2 low;  // the lower-left corner, in normalised device coordinates of the window
    glm::dvec2 unit; // share of the window
};

/// At the left edge of the player's column, all at the top of the window.
class WindowLabels final : public PlayerLabels {
public:
    explicit WindowLabels(Renderer& ownRenderer) : renderer(ownRenderer) {}

    void write(const PlayerLabel& label, const Viewport::Rect& view) override
    {
        const glm::dvec2 window = windowOf(renderer);
        const double left = 2 * view.x / window.x - 1;
        const double y = std::min(1 - (2 * view.y / window.y - 1), kHighest);
        const TextLine lines[] = {{0, label.standing}, {1, label.name}};
        renderer.getTextRenderer()->addLines(lines,
            {.x = left + kMargin, .y = y, .right = left + 2 * view.width / window.x, .bottom = -1, .leastScale = 1});
    }

    void writeSign(const std::string&, const glm::vec3&, const Viewport&) override {}

private:
    Renderer& renderer;
};

/// In the upper-left corner of the player's own view, as large as the view is; and a sign above each car.
class ViewLabels final : public PlayerLabels {
public:
    explicit ViewLabels(Renderer& ownRenderer) : renderer(ownRenderer) {}

    void write(const PlayerLabel& label, const Viewport::Rect& view) override
    {
        const Area area = areaOf(view);
        const TextLine lines[] = {{0, label.standing}, {1, label.sign + " " + label.name}};
        renderer.getTextRenderer()->addLines(lines,
            {.x = area.low.x + kMargin * area.unit.x,
                .y = area.low.y + (1 + kHighest) * area.unit.y,
                .right = area.low.x + (2 - kMargin) * area.unit.x,
                .bottom = area.low.y,
                .unit = area.unit});
    }

    void writeSign(const std::string& sign, const glm::vec3& place, const Viewport& view) override
    {
        constexpr float kAbove = 3.5f;           // world units: clear of duck and hat
        constexpr double kNearest = 1;           // world units from the eye
        constexpr double kFullSizeDistance = 25; // world units from the eye; farther off signs are smaller
        constexpr double kSmallest = 0.6;        // share of the size nearby
        const Camera& camera = *view.camera;
        const glm::dvec4 clip(camera.getProjection() * camera.getView() *
            glm::vec4(place + glm::vec3(0, kAbove, 0), 1));
        if (clip.w < kNearest) return;

        TextRenderer& text = *renderer.getTextRenderer();
        const Area area = areaOf(view.getRect());
        const double size = std::clamp(kFullSizeDistance / clip.w, kSmallest, 1.0) * text.getScale();
        const glm::dvec2 glyph = TextRenderer::kGlyph * size * area.unit;
        const glm::dvec2 sides(glyph.x * static_cast<double>(sign.size()), glyph.y);
        const glm::dvec2 above = area.low + (glm::dvec2(clip) / clip.w + 1.0) * area.unit;
        const glm::dvec2 low = above - glm::dvec2(sides.x / 2, 0), high = low + sides;
        const glm::dvec2 end = area.low + 2.0 * area.unit;
        if (glm::any(glm::lessThan(low, area.low)) || glm::any(glm::greaterThan(high, end))) return;
        if (text.isFree(low, high)) text.addText(sign, low.x, low.y, glyph);
    }

private:
    Area areaOf(const Viewport::Rect& view) const { return {view, windowOf(renderer)}; }

    Renderer& renderer;
};

void writeCulledInWindow(Renderer& renderer, const std::string& line)
{
    renderer.getTextRenderer()->addText(line, -1.0, -1.0);
}

void writeCulledInView(Renderer& renderer, const std::string& line, const Viewport& view)
{
    TextRenderer& text = *renderer.getTextRenderer();
    const Area area(view.getRect(), windowOf(renderer));
    const double raised = TextRenderer::kGlyph * (text.getScale() - 1); // it grows downwards
    const TextLine lines[] = {{0, line}};
    text.addLines(lines,
        {.x = area.low.x,
            .y = area.low.y + raised * area.unit.y,
            .right = area.low.x + 2 * area.unit.x,
            .bottom = area.low.y,
            .unit = area.unit});
}

} // namespace

CulledText makeCulledText(Renderer& renderer, const TextOptions& options)
{
    if (!options.culledText) return {};
    if (options.ownLabels)
        return [&](const std::string& line, const Viewport& view) { writeCulledInView(renderer, line, view); };
    return [&](const std::string& line, const Viewport&) { writeCulledInWindow(renderer, line); };
}

std::unique_ptr<PlayerLabels> makePlayerLabels(Renderer& renderer, const TextOptions& options)
{
    if (options.ownLabels) return std::make_unique<ViewLabels>(renderer);
    return std::make_unique<WindowLabels>(renderer);
}
