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

/// Write the lines for this frame, from the window's upper-left corner on.
void writeHelp(TextRenderer& text, std::span<const TextLine> lines);
