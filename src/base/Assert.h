#pragma once

/// Stop the program with one line on standard error when the condition does not hold, which only a programming error
/// can bring about. `text` says what was expected. Active in every build type, unlike <cassert>, which the physics
/// SDK's release headers switch off.
#define QKD_ASSERT(condition, text) \
    do { \
        if (!(condition)) failAssertion(#condition, text, __FILE__, __LINE__); \
    } while (false)

[[noreturn]] void failAssertion(const char* condition, const char* text, const char* file, int line);
