#pragma once

#include "platform/Language.h"

/// What is written on the screen, and how.
struct TextOptions {
    Language language = Language::De;
    int scale = 100;        ///< percent, 100 to 300
    bool ownLabels = false; ///< each player's text in that player's view, and a sign above each car
    bool culledText = true; ///< how many models each view leaves out
    bool hint = false;      ///< the first screen says how to join
};
