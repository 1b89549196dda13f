#pragma once

#include "audio/AudioSystem.h"
#include "testing/CapturedLog.h"
#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

constexpr int kRate = 44100; // hertz, of what is rendered and of most files here

/// Samples of one or more channels in turn.
struct Samples {
    std::vector<float> values;
    int channels = 1;

    int frames() const { return static_cast<int>(values.size()) / channels; }
    float at(int frame, int channel) const { return values[static_cast<std::size_t>(frame * channels + channel)]; }

    float peak() const
    {
        float highest = 0;
        for (const float value : values) highest = std::max(highest, std::abs(value));
        return highest;
    }

    /// Return the amplitude of the sine of this frequency; exact when the samples hold whole periods.
    double amplitudeAt(double hertz, int channel = 0) const
    {
        std::complex<double> sum;
        for (int i = 0; i < frames(); ++i)
            sum += std::polar<double>(at(i, channel), 2 * std::numbers::pi * hertz * i / kRate);
        return 2 * std::abs(sum) / frames();
    }
};

/// Make sines, one on each channel.
inline Samples tones(const std::vector<double>& hertz, int frames, double amplitude, int rate = kRate)
{
    Samples made{std::vector<float>(static_cast<std::size_t>(frames) * hertz.size()), static_cast<int>(hertz.size())};
    for (std::size_t i = 0; i < made.values.size(); ++i) {
        const double seconds = static_cast<double>(i / hertz.size()) / rate;
        made.values[i] =
            static_cast<float>(amplitude * std::sin(2 * std::numbers::pi * hertz[i % hertz.size()] * seconds));
    }
    return made;
}

inline Samples readSoundFile(const std::string& path)
{
    SF_INFO info{};
    SNDFILE* file = sf_open(path.c_str(), SFM_READ, &info);
    Samples read{std::vector<float>(static_cast<std::size_t>(info.frames * info.channels)), info.channels};
    EXPECT_EQ(sf_readf_float(file, read.values.data(), info.frames), info.frames) << path;
    sf_close(file);
    return read;
}

/// A sound system that is heard here, and a folder for its files.
class ListeningTest : public testing::Test {
protected:
    /// Write a WAV file and return its path.
    std::string write(const std::string& name, const Samples& samples, int rate = kRate)
    {
        const std::string path = folder.write(name, "");
        SF_INFO info{0, rate, samples.channels, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 0, 0};
        SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
        sf_writef_float(file, samples.values.data(), samples.frames());
        sf_close(file);
        return path;
    }

    /// Copy this share of a sound of the game and return the copy's path.
    std::string copyGameFile(const std::string& name, double share = 1.0)
    {
        const std::string path = folder.write(std::to_string(share) + name, "");
        std::filesystem::copy_file(SOUND_FOLDER + name, path, std::filesystem::copy_options::overwrite_existing);
        const auto bytes = static_cast<double>(std::filesystem::file_size(path));
        std::filesystem::resize_file(path, static_cast<std::uintmax_t>(bytes * share));
        return path;
    }

    /// Return what is heard over these seconds.
    static Samples listen(AudioSystem& player, double seconds, int loudspeakers = 2)
    {
        const int frames = static_cast<int>(seconds * kRate);
        Samples heard{std::vector<float>(static_cast<std::size_t>(frames * loudspeakers)), loudspeakers};
        player.getOutput().render(heard.values.data(), frames);
        return heard;
    }
    Samples listen(double seconds) { return listen(audio, seconds); }

    template <class Action>
    static std::string printedBy(const Action& action)
    {
        testing::internal::CaptureStderr(); // the decoder has lines of its own about a bad file
        CapturedLog log;
        action();
        testing::internal::GetCapturedStderr();
        return log.text();
    }

    TemporaryFolder folder;
    AudioSystem audio{SoundTarget::Loopback};
};
