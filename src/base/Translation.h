#pragma once

#include <libintl.h>

#include <string>

constexpr const char* kTextDomain = "quackdash"; ///< the name of our catalogues

/// Return a text of the screen, German as the sources have it, in the language that was chosen (platform/Language).
inline std::string translated(const char* german)
{
    return dgettext(kTextDomain, german);
}
