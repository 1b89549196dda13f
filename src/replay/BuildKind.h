#pragma once

#include <string>

/// Return in one line what decides how this program computes, so that of two builds with the same line and the same
/// sources one can be held to the other's results, bit by bit: compiler, physics SDK, and a fingerprint of what
/// arithmetic and the C library's functions come to in this process, on this processor.
std::string kindOfBuild();
