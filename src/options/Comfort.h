#pragma once

#include "options/OptionValue.h"

/// Set at once what most people like, over what was set before; on the command line only. The key for pictures is taken
/// only where none is set, and nothing else has it (see findRivalry).
OptionValue comfort();
