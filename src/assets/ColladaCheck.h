#pragma once

#include <string>

/// Why a Collada file must not reach the importer, in a few words; empty when it may, or when the file is none or
/// cannot be opened. The importer takes on trust that index lists hold numbers only (on anything else it fills the
/// memory) and that accessors stay inside their arrays (it reads past them).
std::string colladaFault(const std::string& path);
