#include "audio/Sound.h"

#include "base/Logger.h"

#include <cmath>

namespace {

constexpr float kPitchStep = 0.01f;
constexpr float kPitchRounding = 0.0001f; // steps don't add up exactly: closer than this counts as arrived
constexpr double kPitchOffset = 3.0;      // of pitch 0
constexpr double kPitchUnit = 44100.0;    // hertz

} // namespace

Sound::Sound(SoundOutput* ownSystem, const std::string& ownName, const std::string& file)
    : system(ownSystem), name(ownName)
{
    if (system->createSound(file, sound) != kSoundOk) logLine(0) << "Error, initializing Sound: " << name << std::endl;
}

void Sound::play(bool loop, float volume)
{
    if (system->setMode(sound, loop ? SoundMode::LoopNormal : SoundMode::LoopOff) != kSoundOk) {
        logLine(0) << "Error, looping sound: " << name << std::endl;
        return;
    }
    if (system->playSound(sound, channel) != kSoundOk) {
        logLine(0) << "Error, playing sound: " << name << std::endl;
        return;
    }
    if (system->setVolume(channel, volume) != kSoundOk) {
        logLine(0) << "Error, setting sound-volume: " << name << std::endl;
        return;
    }
    updateSystem();
}

void Sound::setPitch(float target)
{
    if (std::abs(target - pitch) > kPitchRounding) pitch += pitch < target ? kPitchStep : -kPitchStep;

    // No line for a sound without a channel: one that cannot be played has said so, and this comes every frame.
    static_cast<void>(system->setFrequency(channel, static_cast<float>((pitch + kPitchOffset) * kPitchUnit)));
    updateSystem();
}

void Sound::updateSystem()
{
    if (system->update() != kSoundOk) logLine(0) << "Error, updating Audiosystem!" << std::endl;
}
