#pragma once

#include <string>
#include <vector>

class TextRenderer;

/// A line of a help screen and its number from the top; numbers that are left out stay empty.
struct HelpLine {
    int number;
    std::string text;
};

/// Return the lines as they find room: of one that is too long, the words after the last commas that still fit go on
/// below, under what follows its ">". Lines that come after move down where they must.
std::vector<HelpLine> wrapped(const std::vector<HelpLine>& lines);

/// Write the lines for this frame, from the window's upper-left corner on; more than a window's full, closer together.
void writeHelp(TextRenderer& text, const std::vector<HelpLine>& lines);
