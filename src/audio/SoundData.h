#pragma once

#include <AL/al.h>

#include <cstddef>
#include <memory>
#include <string>

class SoundFile;

/// A sound that can be played, made from a file. Short ones are decoded whole into a buffer of the sound library, long
/// ones (music) are decoded while they play. Owned by the SoundOutput, which must have a current context while an
/// audible one is made or destroyed.
class SoundData {
public:
    /// `audible` false: the file is only checked, for an output that plays nothing. Nothing, and a reason in `error`,
    /// on failure.
    static std::unique_ptr<SoundData> load(const std::string& path, bool audible, std::string& error);

    ~SoundData() { releaseBuffer(); }
    SoundData(const SoundData&) = delete;
    SoundData& operator=(const SoundData&) = delete;

    const std::string& getPath() const { return path; }
    int getSampleRate() const { return sampleRate; } ///< hertz
    bool isStreamed() const { return streamed; }
    ALuint getBuffer() const { return buffer; } ///< 0 for a streamed or an inaudible sound

    /// Gives the samples back to the sound library; the sound cannot be heard any more.
    void releaseBuffer();

    bool looping = false; ///< what plays that start from now on do at the end

private:
    SoundData(const std::string& ownPath, const SoundFile& file);
    bool decode(SoundFile& file);

    std::string path;
    int sampleRate;
    bool streamed;
    ALuint buffer = 0;
};
