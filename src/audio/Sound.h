#pragma once

#include "audio/SoundOutput.h"

#include <string>

/// One sound of the game, loaded from a file. Owned by the AudioSystem, or by whoever had it made by createSound; the
/// output must outlive it. A sound whose file could not be loaded stays silent: each play logs its failure, setPitch
/// does nothing that is heard.
class Sound {
public:
    /// Load the file. On failure log "Error, initializing Sound: " with the name.
    Sound(SoundOutput* ownSystem, const std::string& ownName, const std::string& file);

    /// Forget the sound; what is playing of it goes on.
    ~Sound() = default;
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    /// Start the sound on a new channel, which setPitch then goes for; what played before plays on. Volume 0 to 1.
    void play(bool loop, float volume);

    /// Move the pitch by one step of 0.01 towards the target (-1 to 1) and play at (pitch + 3) x 44100 Hz from now on.
    /// To be called once per frame.
    void setPitch(float target);

private:
    void updateSystem();

    SoundOutput* system;
    std::string name;
    std::shared_ptr<const SoundData> data; ///< null: the file could not be loaded
    SoundChannel channel;
    float pitch = 0.0f;
};
