#include "app/HelpText.h"

#include <algorithm>

namespace {

constexpr TextRoom kWindow{-0.975, 0.875, 0.975, -1};

} // namespace

void addControls(std::vector<TextLine>& lines, int number, const std::string& indent, std::span<const Control> controls)
{
    std::size_t width = 0;
    for (const Control& control : controls) width = std::max(width, control.first.size());
    for (const auto& [what, key] : controls) {
        std::string line = indent + what;
        line.append(width - what.size(), ' ').append(" > ").append(key);
        lines.push_back({number++, line});
    }
}

void writeHelp(TextRenderer& text, std::span<const TextLine> lines)
{
    text.addLines(lines, kWindow);
}
