#include "audio/SoundData.h"

#include "audio/SoundFile.h"

#include <AL/alext.h>

#include <vector>

namespace {

constexpr std::int64_t kLongestWhole =
    std::int64_t{512} * 1024; // frames (12 s at 44.1 kHz, 4 MiB decoded); longer sounds are streamed

} // namespace

std::unique_ptr<SoundData> SoundData::load(const std::string& path, bool audible, std::string& error)
{
    const std::unique_ptr<SoundFile> file = SoundFile::open(path, error);
    if (!file) return nullptr;

    std::unique_ptr<SoundData> sound(new SoundData(path, *file));
    if (audible && !sound->streamed && !sound->decode(*file)) {
        error = "cannot be decoded";
        return nullptr;
    }
    return sound;
}

SoundData::SoundData(const std::string& ownPath, const SoundFile& file)
    : path(ownPath), sampleRate(file.getSampleRate()), streamed(file.getFrames() > kLongestWhole)
{
}

void SoundData::releaseBuffer()
{
    if (buffer) alDeleteBuffers(1, &buffer);
    buffer = 0;
}

bool SoundData::decode(SoundFile& file)
{
    std::vector<float> samples(2 * static_cast<std::size_t>(file.getFrames()));
    const std::size_t frames = file.read(samples.data(), samples.size() / 2);
    if (frames == 0) return false;

    alGenBuffers(1, &buffer);
    alBufferData(buffer, AL_FORMAT_STEREO_FLOAT32, samples.data(), static_cast<ALsizei>(2 * frames * sizeof(float)),
        sampleRate);
    return alGetError() == AL_NO_ERROR;
}
