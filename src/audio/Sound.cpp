#include "audio/Sound.h"

#include "audio/SoundSource.h"
#include "base/Logger.h"

#include <cmath>

namespace {

constexpr float kPitchStep = 0.01f;
constexpr float kPitchRounding = 0.0001f; // steps don't add up exactly: closer than this counts as arrived
constexpr double kPitchOffset = 3.0;      // of pitch 0
constexpr double kPitchUnit = 44100.0;    // hertz

} // namespace

Sound::Sound(SoundOutput* ownSystem, const std::string& ownName, const std::string& file, const DecodedSound& decoded,
    float ownGain)
    : system(ownSystem), name(ownName), gain(ownGain), data(SoundData::make(file, decoded))
{
    if (!data) logLine(0) << "Error, initializing Sound: " << name << std::endl;
}

void Sound::play(bool loop, float volume)
{
    if (!data) {
        logLine(0) << "Error, looping sound: " << name << std::endl;
    } else if (!(volume >= 0)) { // no number either
        logLine(0) << "Error, setting sound-volume: " << name << std::endl;
    } else if (!system->play(data, loop, volume * gain, channel)) {
        logLine(0) << "Error, playing sound: " << name << std::endl;
    } else {
        updateSystem();
    }
}

void Sound::setPitch(float target)
{
    if (std::abs(target - pitch) > kPitchRounding) pitch += pitch < target ? kPitchStep : -kPitchStep;

    if (const auto playing = channel.lock())
        playing->setFrequency(static_cast<float>((pitch + kPitchOffset) * kPitchUnit));
    updateSystem();
}

void Sound::updateSystem()
{
    if (!system->update()) logLine(0) << "Error, updating Audiosystem!" << std::endl;
}
