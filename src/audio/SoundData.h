#pragma once

#include <AL/al.h>

#include <memory>
#include <string>
#include <vector>

/// A sound that can be played: a file of anything that libsndfile reads (WAV, MP3 and more), decoded whole into a
/// buffer of the sound library, so that nothing is read while it plays. Shared by its Sound and by what plays of it.
class SoundData {
public:
    /// Decode a file of one channel, which then goes to both sides at full level, or two. Samples beyond full scale, as
    /// a damaged MP3 has them, are cut to it. Null when the file is missing or no sound that can be played (logged with
    /// the reason). Without a sound device the file is only checked.
    static std::shared_ptr<const SoundData> load(const std::string& path);

    ~SoundData();
    SoundData(const SoundData&) = delete;
    SoundData& operator=(const SoundData&) = delete;

    int getSampleRate() const { return sampleRate; } ///< hertz
    ALuint getBuffer() const { return buffer; }

private:
    SoundData(const std::vector<float>& samples, int ownSampleRate);

    int sampleRate;
    ALuint buffer = 0;
};
