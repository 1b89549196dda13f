#pragma once

#include <string>

// What an installation tells of the options, from the table.

/// Return the option list of the manual page, in troff's man macros.
std::string manualText();

/// Return the completion for bash.
std::string completionText();
