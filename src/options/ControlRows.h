#pragma once

#include "options/OptionTable.h"

/// Return the rows for keys and game-pads: one for each thing that each device can do, and the rest of their group.
std::vector<Option> controlRows();
