#pragma once

#include "audio/SoundOutput.h"

#include <gtest/gtest.h>
#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

constexpr int kRate = 44100; // hertz, of what is rendered and of most files here

/// Stereo samples, left and right in turn.
struct Samples {
    std::vector<float> values;

    int frames() const { return static_cast<int>(values.size() / 2); }
    float left(int frame) const { return values[2 * static_cast<std::size_t>(frame)]; }
    float right(int frame) const { return values[2 * static_cast<std::size_t>(frame) + 1]; }
    float peak() const
    {
        float highest = 0;
        for (const float value : values) highest = std::max(highest, std::abs(value));
        return highest;
    }
};

/// `amplitude` x sin, of this many frames.
inline std::vector<float> tone(double hertz, int frames, double amplitude, int rate = kRate)
{
    std::vector<float> samples;
    samples.reserve(static_cast<std::size_t>(frames));
    for (int i = 0; i < frames; ++i)
        samples.push_back(static_cast<float>(amplitude * std::sin(2 * std::numbers::pi * hertz * i / rate)));
    return samples;
}

/// Writes interleaved samples as a WAV file of 16 bits.
inline void writeWave(const std::string& path, const std::vector<float>& samples, int channels = 1, int rate = kRate)
{
    SF_INFO info{};
    info.channels = channels;
    info.samplerate = rate;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
    ASSERT_TRUE(file) << path;
    sf_write_float(file, samples.data(), static_cast<sf_count_t>(samples.size()));
    sf_close(file);
}

/// A whole stereo file, decoded.
inline Samples decoded(const std::string& path)
{
    SF_INFO info{};
    SNDFILE* file = sf_open(path.c_str(), SFM_READ, &info);
    EXPECT_TRUE(file && info.channels == 2) << path;
    Samples samples{std::vector<float>(2 * static_cast<std::size_t>(info.frames))};
    EXPECT_EQ(sf_readf_float(file, samples.values.data(), info.frames), info.frames);
    sf_close(file);
    return samples;
}

/// What is heard over these frames of the game, each of which updates the output and then lasts `passFrames` frames of
/// sound.
inline Samples listen(SoundOutput& output, int frames, int passFrames = kRate / 60)
{
    Samples heard{std::vector<float>(2 * static_cast<std::size_t>(frames))};
    for (int at = 0; at < frames; at += passFrames) {
        EXPECT_EQ(output.update(), kSoundOk);
        output.render(&heard.values[2 * static_cast<std::size_t>(at)], std::min(passFrames, frames - at));
    }
    return heard;
}

/// The amplitude of the sine of this frequency in the left channel; exact when the samples hold whole periods.
inline double amplitudeAt(const Samples& samples, double hertz)
{
    double cosine = 0, sine = 0;
    for (int i = 0; i < samples.frames(); ++i) {
        const double phase = 2 * std::numbers::pi * hertz * i / kRate;
        cosine += samples.left(i) * std::cos(phase);
        sine += samples.left(i) * std::sin(phase);
    }
    return 2 * std::hypot(cosine, sine) / samples.frames();
}
