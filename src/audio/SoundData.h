#pragma once

#include <AL/al.h>

#include <memory>
#include <string>
#include <vector>

/// What a sound file holds, ready for the sound library.
struct DecodedSound {
    std::string fault;          ///< why it cannot be played; empty when it can
    std::vector<float> samples; ///< left and right in turn, -1 to 1
    int sampleRate = 0;         ///< hertz
    long long secondsLost = 0;  ///< at the end of a damaged file
};

/// A sound that can be played: a file of anything that libsndfile reads (WAV, MP3 and more), decoded whole into a
/// buffer of the sound library, so that nothing is read while it plays. Shared by its Sound and by what plays of it.
class SoundData {
public:
    /// Decode a file of one channel, which then goes to both sides at full level, or two. Samples beyond full scale, as
    /// a damaged MP3 has them, are cut to it. Needs neither the sound library nor the log: any thread, though one at a
    /// time, since the decoder shares its error texts.
    static DecodedSound decode(const std::string& path);

    /// Take what was decoded of a file. Null when that cannot be played (logged with the reason). Without a sound
    /// device there is no more to it.
    static std::shared_ptr<const SoundData> make(const std::string& path, const DecodedSound& decoded);

    ~SoundData();
    SoundData(const SoundData&) = delete;
    SoundData& operator=(const SoundData&) = delete;

    int getSampleRate() const { return sampleRate; } ///< hertz
    ALuint getBuffer() const { return buffer; }

private:
    explicit SoundData(const DecodedSound& decoded);

    int sampleRate;
    ALuint buffer = 0;
};
