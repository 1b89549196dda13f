#pragma once

#include <string>

/// Return how many times a text holds a part of one character at least.
inline int occurrences(const std::string& text, const std::string& part)
{
    int found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++found;
    return found;
}
