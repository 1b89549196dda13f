#pragma once

#include <AL/al.h>

#include <memory>

class SoundData;

/// One playing of a sound (a source of the sound library), heard from both sides whatever the listener does. Owned by
/// the SoundOutput, whose device must be open.
class SoundSource {
public:
    /// Start a sound from its beginning at its own speed; volume 0 to 1, linear, more counts as 1. Null when the sound
    /// library refuses.
    static std::shared_ptr<SoundSource> start(std::shared_ptr<const SoundData> sound, bool loop, float volume);

    ~SoundSource();
    SoundSource(const SoundSource&) = delete;
    SoundSource& operator=(const SoundSource&) = delete;

    bool isPlaying() const;
    bool isLooping() const { return looping; }

    /// Play the samples at this rate, in hertz, from now on.
    void setFrequency(float hertz);

private:
    SoundSource(std::shared_ptr<const SoundData> ownSound, bool loop) : sound(std::move(ownSound)), looping(loop) {}

    std::shared_ptr<const SoundData> sound;
    bool looping;
    ALuint source = 0;
};
