#include "app/HelpText.h"

#include "render/TextRenderer.h"

#include <algorithm>

namespace {

// Normalised device coordinates.
constexpr double kLeft = -0.975;
constexpr double kFirstLine = 0.875;
constexpr double kLastLine = -0.975;
constexpr double kLineSpacing = 0.1;

constexpr std::size_t kColumns = 31; // glyphs from there to the window's right edge

/// Return where the part of a line ends that finds room: after the last comma that does, or else after the first.
std::size_t endOfRow(const std::string& text)
{
    if (text.size() <= kColumns) return text.size();
    std::size_t comma = text.rfind(", ", kColumns - 1);
    if (comma == std::string::npos) comma = text.find(", ");
    return comma == std::string::npos ? text.size() : comma + 1;
}

} // namespace

std::vector<HelpLine> wrapped(const std::vector<HelpLine>& lines)
{
    std::vector<HelpLine> rows;
    int next = 0;
    for (const HelpLine& line : lines) {
        const std::size_t arrow = line.text.find("> ");
        const std::size_t indent = arrow == std::string::npos ? line.text.find_first_not_of(' ') : arrow + 2;
        next = std::max(next, line.number);
        std::string rest = line.text;
        for (std::size_t end = endOfRow(rest); end < rest.size(); end = endOfRow(rest)) {
            rows.push_back({next++, rest.substr(0, end)});
            rest = std::string(indent, ' ') + rest.substr(end + 1);
        }
        rows.push_back({next++, rest});
    }
    return rows;
}

void writeHelp(TextRenderer& text, const std::vector<HelpLine>& lines)
{
    const double spacing = std::min(kLineSpacing, (kFirstLine - kLastLine) / lines.back().number);
    for (const HelpLine& line : lines) text.addText(line.text, kLeft, kFirstLine - line.number * spacing);
}
