#pragma once

#include <AL/al.h>

#include <array>
#include <memory>

class SoundData;
class SoundFile;

/// Feeds one source of the sound library with a long sound that is decoded piece by piece, about a second ahead of what
/// is heard, so that slow frames leave no gap. A looping sound starts over within a piece, without a gap either. Owned
/// by the source's SoundSource.
class SoundStream {
public:
    /// Null when the sound's file cannot be opened any more.
    static std::unique_ptr<SoundStream> open(const SoundData& sound);

    /// Takes its pieces from the source, which must be stopped.
    ~SoundStream();
    SoundStream(const SoundStream&) = delete;
    SoundStream& operator=(const SoundStream&) = delete;

    /// Queues the first pieces on a source that has none, for start.
    bool start(ALuint newSource);

    /// Replaces the pieces that have been heard, and gets a source going again that had run dry.
    bool refill();

    /// True once the last piece of a sound that does not loop has been queued: the source stops by itself.
    bool hasEnded() const { return ended; }

private:
    static constexpr int kPieces = 12;
    static constexpr std::size_t kPieceFrames =
        4096; // 12 x 4096 frames are 1.1 s at 44.1 kHz; one piece takes about 0.3 ms to decode

    SoundStream(std::unique_ptr<SoundFile> ownFile, const SoundData& sound);
    bool queueNext(ALuint buffer);
    std::size_t decodePiece(float* samples);

    std::unique_ptr<SoundFile> file;
    bool looping;
    bool ended = false;
    ALuint source = 0;
    std::array<ALuint, kPieces> buffers{};
};
