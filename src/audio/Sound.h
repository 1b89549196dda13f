#pragma once

#include "audio/ISound.h"
#include "audio/SoundData.h"
#include "audio/SoundOutput.h"

#include <string>

/// One sound of the game, from a file. Owned by the AudioSystem, or by whoever had it made by createSound; the
/// output must outlive it. A sound whose file could not be loaded stays silent: each play logs its failure, setPitch
/// does nothing that is heard.
class Sound final : public ISound {
public:
    /// Take what was decoded of the file. On failure log "Error, initializing Sound: " with the name. gain: a factor of
    /// every volume that it is played at.
    Sound(SoundOutput* ownSystem, const std::string& ownName, const std::string& file, const DecodedSound& decoded,
        float ownGain = 1.0f);

    /// Forget the sound; what is playing of it goes on.
    ~Sound() override = default;
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    void play(bool loop, float volume) override;
    void setPitch(float target) override; ///< in steps of 0.01, to play at (pitch + 3) x 44100 Hz

private:
    void updateSystem();

    SoundOutput* system;
    std::string name;
    float gain;
    std::shared_ptr<const SoundData> data; ///< null: the file could not be loaded
    SoundChannel channel;
    float pitch = 0.0f;
};
