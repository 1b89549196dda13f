#pragma once

#include "render/TextRenderer.h"

#include <span>
#include <string>
#include <utility>
#include <vector>

/// What is done, and the key that does it.
using Control = std::pair<std::string, std::string>;

/// Append a line for each control, from that number on: "Fahren     > WASD", the keys one below the other.
void addControls(std::vector<TextLine>& lines, int number, const std::string& indent,
    std::span<const Control> controls);

/// Return the lines as they find room: of one that is too long, the words after the last commas that still fit go on
/// below, under what follows its ">". Lines that come after move down where they must.
std::vector<TextLine> wrapped(const std::vector<TextLine>& lines);

/// Write the lines for this frame, from the window's upper-left corner on; more than a window's full, smaller.
void writeHelp(TextRenderer& text, std::span<const TextLine> lines);
