#pragma once

#include "app/KeyOptions.h"
#include "audio/SoundOptions.h"
#include "input/ControlOptions.h"
#include "match/StartOptions.h"
#include "platform/ScreenSaver.h"
#include "platform/WindowOptions.h"
#include "players/PlayerColours.h"
#include "render/TextOptions.h"
#include "render/ViewOptions.h"

/// What the game can be told before it starts, part by part as the modules have it.
struct GameOptions {
    SoundOptions sound;
    StartOptions start;
    WindowOptions window;
    ViewOptions view;
    ControlOptions controls;
    KeyOptions keys;
    TextOptions text;
    ColourOptions colours;
    ScreenSaverOptions screenSaver;
};
