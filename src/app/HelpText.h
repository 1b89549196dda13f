#pragma once

#include <span>

class TextRenderer;

/// A line of a help screen and its number from the top; numbers that are left out stay empty.
struct HelpLine {
    int number;
    const char* text;
};

/// Write the lines for this frame, from the window's upper-left corner on.
void writeHelp(TextRenderer& text, std::span<const HelpLine> lines);
