#pragma once

#include "audio/ISound.h"
#include "audio/SoundOutput.h"

#include <string>

/// One sound of the game, loaded from a file. Owned by the AudioSystem, or by whoever had it made by createSound; the
/// output must outlive it. A sound whose file could not be loaded stays silent: each play logs its failure, setPitch
/// does nothing that is heard.
class Sound final : public ISound {
public:
    /// Loads the file. On failure logs "Error, initializing Sound: " with the name.
    Sound(SoundOutput* ownSystem, const std::string& ownName, const std::string& file);

    /// What is playing goes on: the samples belong to the output.
    ~Sound() override = default;
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    /// Starts the sound on a new channel, which setPitch then goes for; what played before plays on. Volume 0 to 1.
    void play(bool loop, float volume) override;

    /// Moves the pitch by one step of 0.01 towards the target (-1 to 1) and plays at (pitch + 3) x 44100 Hz from now
    /// on. Once per frame.
    void setPitch(float target) override;

private:
    void updateSystem();

    SoundData* sound = nullptr;
    SoundOutput* system;
    SoundChannel channel;
    std::string name;
    float pitch = 0.0f;
};
