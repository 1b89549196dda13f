#pragma once

/// Stops the program with one line on standard error when a programming error shows. Active in every build type, unlike
/// <cassert>, which the physics SDK's release headers switch off. `text` says what was expected (and may say what
/// came).
#define QKD_ASSERT(condition, text) \
    do { \
        if (!(condition)) failAssertion(#condition, text, __FILE__, __LINE__); \
    } while (false)

[[noreturn]] void failAssertion(const char* condition, const char* text, const char* file, int line);
