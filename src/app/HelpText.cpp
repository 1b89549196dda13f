#include "app/HelpText.h"

#include <algorithm>

namespace {

constexpr TextRoom kWindow{-0.975, 0.875, 0.975, -1};

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

std::vector<TextLine> wrapped(const std::vector<TextLine>& lines)
{
    std::vector<TextLine> rows;
    int next = 0;
    for (const TextLine& line : lines) {
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

void writeHelp(TextRenderer& text, std::span<const TextLine> lines)
{
    text.addLines(lines, kWindow);
}
