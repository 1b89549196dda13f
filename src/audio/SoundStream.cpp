#include "audio/SoundStream.h"

#include "audio/SoundData.h"
#include "audio/SoundFile.h"

#include <AL/alext.h>

#include <string>

std::unique_ptr<SoundStream> SoundStream::open(const SoundData& sound)
{
    std::string error;
    std::unique_ptr<SoundFile> file = SoundFile::open(sound.getPath(), error);
    return file ? std::unique_ptr<SoundStream>(new SoundStream(std::move(file), sound)) : nullptr;
}

SoundStream::SoundStream(std::unique_ptr<SoundFile> ownFile, const SoundData& sound)
    : file(std::move(ownFile)), looping(sound.looping)
{
    alGenBuffers(kPieces, buffers.data());
}

SoundStream::~SoundStream()
{
    if (source) alSourcei(source, AL_BUFFER, 0);
    alDeleteBuffers(kPieces, buffers.data());
}

bool SoundStream::start(ALuint newSource)
{
    source = newSource;
    for (const ALuint buffer : buffers) {
        if (!ended && !queueNext(buffer)) return false;
    }
    return true;
}

bool SoundStream::refill()
{
    ALint heard = 0;
    alGetSourcei(source, AL_BUFFERS_PROCESSED, &heard);
    if (heard == 0) return true;

    for (; heard > 0; --heard) {
        ALuint buffer = 0;
        alSourceUnqueueBuffers(source, 1, &buffer);
        if (!ended && !queueNext(buffer)) return false;
    }
    ALint state = 0, queued = 0;
    alGetSourcei(source, AL_SOURCE_STATE, &state);
    alGetSourcei(source, AL_BUFFERS_QUEUED, &queued);
    if (state == AL_STOPPED && queued > 0) alSourcePlay(source);
    return alGetError() == AL_NO_ERROR;
}

bool SoundStream::queueNext(ALuint buffer)
{
    std::array<float, 2 * kPieceFrames> samples;
    const std::size_t frames = decodePiece(samples.data());
    if (frames == 0) return true;

    alBufferData(buffer, AL_FORMAT_STEREO_FLOAT32, samples.data(), static_cast<ALsizei>(2 * frames * sizeof(float)),
        file->getSampleRate());
    alSourceQueueBuffers(source, 1, &buffer);
    return alGetError() == AL_NO_ERROR;
}

std::size_t SoundStream::decodePiece(float* samples)
{
    std::size_t filled = 0;
    bool startedOver = false; // and nothing has come since: a file that was emptied under us
    while (filled < kPieceFrames) {
        const std::size_t got = file->read(samples + 2 * filled, kPieceFrames - filled);
        filled += got;
        if (got > 0) {
            startedOver = false;
        } else if (looping && !startedOver && file->rewind()) {
            startedOver = true;
        } else {
            ended = true;
            break;
        }
    }
    return filled;
}
