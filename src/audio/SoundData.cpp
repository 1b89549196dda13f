#include "audio/SoundData.h"

#include "base/Logger.h"

#include <AL/alc.h>
#include <AL/alext.h>
#include <sndfile.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <fstream>
#include <system_error>
#include <vector>

namespace {

constexpr sf_count_t kMostFrames = sf_count_t{10} * 60 * 48000; // ten minutes at 48 kHz, 230 MB decoded

struct Closer {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
using SoundFile = std::unique_ptr<SNDFILE, Closer>;

/// Return why a file cannot be decoded, or nothing. Not in the decoder's words: to it a folder is of an unknown format,
/// and a text called .mp3 does not exist.
std::string findFault(const std::string& path, const SoundFile& file, const SF_INFO& info)
{
    errno = 0;
    if (std::ifstream(path).peek() == std::ifstream::traits_type::eof())
        return errno ? std::generic_category().message(errno) : "it is empty";
    if (!file) return "no sound that can be decoded";
    if (info.frames <= 0 || info.samplerate <= 0) return "no sound in it";
    if (info.frames > kMostFrames) return "longer than ten minutes at 48 kHz";
    if (info.channels > 2) return std::to_string(info.channels) + " channels, only one or two can be played";
    return "";
}

float cutToFullScale(float sample)
{
    return std::isnan(sample) ? 0.0f : std::clamp(sample, -1.0f, 1.0f);
}

/// Decode what there is of the frames that the file promises, left and right in turn.
std::vector<float> decodeFrames(const SoundFile& file, const SF_INFO& info)
{
    std::vector<float> samples(2 * static_cast<std::size_t>(info.frames));
    const sf_count_t decoded = sf_readf_float(file.get(), samples.data(), info.frames);
    const auto frames = static_cast<std::size_t>(std::max(decoded, sf_count_t{0}));
    if (info.channels == 1) {
        for (std::size_t i = frames; i-- > 0;) samples[2 * i] = samples[2 * i + 1] = samples[i];
    }
    samples.resize(2 * frames);
    std::transform(samples.begin(), samples.end(), samples.begin(), cutToFullScale);
    return samples;
}

} // namespace

DecodedSound SoundData::decode(const std::string& path)
{
    SF_INFO info{};
    const SoundFile file(sf_open(path.c_str(), SFM_READ, &info));
    DecodedSound decoded;
    decoded.fault = findFault(path, file, info);
    if (!decoded.fault.empty()) return decoded;

    decoded.sampleRate = info.samplerate;
    decoded.samples = decodeFrames(file, info);
    if (decoded.samples.empty()) decoded.fault = "damaged from its beginning";
    const sf_count_t missing = info.frames - static_cast<sf_count_t>(decoded.samples.size() / 2);
    decoded.secondsLost = missing / info.samplerate; // less than one is the rounding of an estimate
    return decoded;
}

std::shared_ptr<const SoundData> SoundData::make(const std::string& path, const DecodedSound& decoded)
{
    if (!decoded.fault.empty()) {
        logLine(0) << "couldn't open sound file: " << path << " (" << decoded.fault << ")" << std::endl;
        return nullptr;
    }
    if (decoded.secondsLost > 0)
        logLine(1) << "sound file is damaged: " << path << " (" << decoded.secondsLost
                   << " seconds at its end are lost)" << std::endl;

    return std::shared_ptr<const SoundData>(new SoundData(decoded));
}

SoundData::SoundData(const DecodedSound& decoded) : sampleRate(decoded.sampleRate)
{
    if (!alcGetCurrentContext()) return;
    alGenBuffers(1, &buffer);
    alBufferData(buffer, AL_FORMAT_STEREO_FLOAT32, decoded.samples.data(),
        static_cast<ALsizei>(decoded.samples.size() * sizeof(float)), sampleRate);
}

SoundData::~SoundData()
{
    if (buffer) alDeleteBuffers(1, &buffer);
}
