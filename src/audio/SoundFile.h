#pragma once

#include <sndfile.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

/// A sound file being decoded from its beginning to its end: anything that libsndfile reads (WAV, MP3 and more), of one
/// or two channels. What comes out is always stereo; a single channel goes to both sides at full level.
class SoundFile {
public:
    /// Nothing when the file is missing, is no sound, holds no sample or has more than two channels; then `error` says
    /// which of these.
    static std::unique_ptr<SoundFile> open(const std::string& path, std::string& error);

    int getSampleRate() const { return info.samplerate; } ///< hertz

    /// Length in frames, as the file's header has it; the data may end earlier.
    std::int64_t getFrames() const { return info.frames; }

    /// Decodes up to `frames` frames into `stereo` (left and right in turn, full scale is 1) and returns how many came;
    /// 0 at the end.
    std::size_t read(float* stereo, std::size_t frames);

    /// Goes back to the beginning. False when the file cannot be read any more.
    bool rewind() { return sf_seek(file.get(), 0, SEEK_SET) == 0; }

private:
    struct Closer {
        void operator()(SNDFILE* open) const { sf_close(open); }
    };
    using Handle = std::unique_ptr<SNDFILE, Closer>;

    SoundFile(Handle ownFile, const SF_INFO& ownInfo) : file(std::move(ownFile)), info(ownInfo) {}

    Handle file;
    SF_INFO info;
};
