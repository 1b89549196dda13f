#pragma once

#include "audio/SoundOptions.h"
#include "match/StartOptions.h"
#include "platform/ScreenSaver.h"

/// What the game can be told before it starts, part by part as the modules have it.
struct GameOptions {
    SoundOptions sound;
    StartOptions start;
    ScreenSaverOptions screenSaver;
};
