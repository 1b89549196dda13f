#include "audio/SoundOutput.h"

#include "audio/SoundDevice.h"
#include "audio/SoundSource.h"
#include "base/Logger.h"

#include <AL/al.h>

#include <algorithm>

SoundOutput::SoundOutput(SoundTarget ownTarget) : target(ownTarget) {}

SoundOutput::~SoundOutput()
{
    close();
}

bool SoundOutput::open(std::size_t channelCount, const std::string& deviceName)
{
    channelLimit = channelCount;
    device = SoundDevice::open(target, deviceName);
    if (device || deviceName.empty()) return device != nullptr;
    logLine(1) << "There is no sound device " << deviceName << "; taking the default one" << std::endl;
    device = SoundDevice::open(target);
    return device != nullptr;
}

void SoundOutput::setGain(float gain)
{
    if (device) alListenerf(AL_GAIN, gain);
}

bool SoundOutput::play(const std::shared_ptr<const SoundData>& sound, bool loop, float volume, SoundChannel& channel)
{
    channel.reset();
    if (!device) return true;
    if (!makeRoom()) return false;

    std::shared_ptr<SoundSource> source = SoundSource::start(sound, loop, volume);
    if (!source) return false;
    channel = source;
    channels.push_back(std::move(source));
    return true;
}

bool SoundOutput::makeRoom()
{
    std::erase_if(channels, [](const auto& source) { return !source->isPlaying(); });
    if (channels.size() < channelLimit) return true;

    const auto oldest =
        std::find_if(channels.begin(), channels.end(), [](const auto& source) { return !source->isLooping(); });
    if (oldest == channels.end()) return false;
    channels.erase(oldest);
    return true;
}

bool SoundOutput::update()
{
    if (!device) return true;
    if (!device->isConnected()) {
        logLine(0) << "The sound device is gone; going on without sound" << std::endl;
        close();
        return true;
    }
    return alGetError() == AL_NO_ERROR;
}

void SoundOutput::render(float* samples, int frames)
{
    if (device) device->render(samples, frames);
}

void SoundOutput::close()
{
    channels.clear();
    device.reset();
}
