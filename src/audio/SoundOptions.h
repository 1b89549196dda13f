#pragma once

#include <string>

/// How the game is heard. Volumes are from 0 (silence) to 100 (as the sounds are), heard as even steps: see gainOf().
struct SoundOptions {
    int volume = 100; ///< of everything
    int musicVolume = 100;
    int effectsVolume = 100; ///< of everything but the music
    bool mute = false;       ///< no output is opened at all
    bool muteUnfocused = false;
    std::string device = {}; ///< as soundDeviceNames() has it; empty for the system's own choice
};

/// Return the factor for samples of a volume. Ears go by ratios: every step changes the level by the same half decibel.
float gainOf(int volume);
