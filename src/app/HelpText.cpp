#include "app/HelpText.h"

#include "render/TextRenderer.h"

namespace {

// Normalised device coordinates.
constexpr double kLeft = -0.975;
constexpr double kFirstLine = 0.875;
constexpr double kLineSpacing = 0.1;

} // namespace

void writeHelp(TextRenderer& text, std::span<const HelpLine> lines)
{
    for (const HelpLine& line : lines) text.addText(line.text, kLeft, kFirstLine - line.number * kLineSpacing);
}
