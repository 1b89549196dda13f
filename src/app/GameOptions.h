#pragma once

#include "app/KeyOptions.h"
#include "audio/SoundOptions.h"
#include "input/ControlOptions.h"
#include "match/StartOptions.h"

/// What the game can be told before it starts, part by part as the modules have it.
struct GameOptions {
    SoundOptions sound;
    StartOptions start;
    ControlOptions controls;
    KeyOptions keys;
};
