#pragma once

#include <string>

/// Return why a Collada file must not reach the importer, in a few words; nothing when it may, when the file is of
/// another kind or when it cannot be opened. The importer does not check that index lists hold numbers only (on
/// anything else it fills the memory), nor that accessors stay inside their arrays (it reads past them).
std::string colladaFault(const std::string& path);
