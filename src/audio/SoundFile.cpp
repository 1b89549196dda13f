#include "audio/SoundFile.h"

std::unique_ptr<SoundFile> SoundFile::open(const std::string& path, std::string& error)
{
    SF_INFO info{};
    Handle file(sf_open(path.c_str(), SFM_READ, &info));
    if (!file) {
        error = sf_strerror(nullptr);
        return nullptr;
    }
    if (info.frames <= 0 || info.samplerate <= 0) {
        error = "no sound in it";
        return nullptr;
    }
    if (info.channels != 1 && info.channels != 2) {
        error = std::to_string(info.channels) + " channels, only one or two can be played";
        return nullptr;
    }
    return std::unique_ptr<SoundFile>(new SoundFile(std::move(file), info));
}

std::size_t SoundFile::read(float* stereo, std::size_t frames)
{
    const sf_count_t decoded = sf_readf_float(file.get(), stereo, static_cast<sf_count_t>(frames));
    const auto got = decoded > 0 ? static_cast<std::size_t>(decoded) : 0;
    if (info.channels == 1) {
        for (std::size_t i = got; i-- > 0;) stereo[2 * i] = stereo[2 * i + 1] = stereo[i];
    }
    return got;
}
