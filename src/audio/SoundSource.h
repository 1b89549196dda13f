#pragma once

#include <AL/al.h>

#include <cstdint>
#include <memory>

class SoundData;
class SoundStream;

/// One of the places in the mix, that plays one sound at a time (a source of the sound library, heard equally from both
/// sides whatever the listener does). Owned by the SoundOutput, whose context must be current.
class SoundSource {
public:
    SoundSource();
    ~SoundSource();
    SoundSource(const SoundSource&) = delete;
    SoundSource& operator=(const SoundSource&) = delete;

    bool isValid() const { return source != 0; } ///< false when the sound library had no source left

    /// Starts a sound from its beginning, at full volume and its own speed, in place of the one before. `newPlay`
    /// numbers this playing.
    bool start(const SoundData& sound, std::uint64_t newPlay);

    /// Stops and forgets the sound.
    void stop();

    bool isPlaying() const;
    bool isLooping() const { return looping; }
    std::uint64_t getPlay() const { return play; } ///< the number of the current or last playing; 0 before the first

    bool setVolume(float volume); ///< 0 to 1
    bool setFrequency(float hertz);

    /// Keeps a streamed sound going. False when its pieces cannot be handed on any more.
    bool update();

private:
    ALuint source = 0;
    std::unique_ptr<SoundStream> stream;
    std::uint64_t play = 0;
    int sampleRate = 1; ///< of the current sound, hertz
    bool looping = false;
};
