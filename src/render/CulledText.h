#pragma once

#include <functional>
#include <string>

class Viewport;

/// Writes into a view, for this frame, how many models it leaves out.
using CulledText = std::function<void(const std::string& line, const Viewport& view)>;
