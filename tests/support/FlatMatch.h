#pragma once

#include "support/DataScratch.h"
#include "support/HeadlessMatch.h"

#include <cstdlib>

/// A headless match on a level field at height 40, with the same random numbers every time.
class FlatMatch {
    /// The only data file that a match without pictures reads. First, so that the match finds it.
    struct Data {
        Data()
        {
            std::srand(1);
            scratch.write("Shader/none", "");
            scratch.writeTga("Textures/map.tga", 512, 512, 1, [](int, int, int) { return 204; });
        }
        DataScratch scratch;
    } data;

public:
    HeadlessMatch match;
};
