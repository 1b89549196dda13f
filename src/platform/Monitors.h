#pragma once

#include <optional>
#include <string>
#include <vector>

/// Return the names of the monitors as the window library has them, the first one first; nothing when there is no
/// display. Starts the library and ends it, and any window with it: call it while there is none.
std::optional<std::vector<std::string>> monitorNames();
