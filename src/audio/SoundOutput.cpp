#include "audio/SoundOutput.h"

#include "audio/SoundData.h"
#include "audio/SoundDevice.h"
#include "audio/SoundSource.h"
#include "base/Logger.h"

#include <algorithm>

namespace {

SoundResult resultOf(bool success)
{
    return success ? kSoundOk : kSoundFailed;
}

} // namespace

SoundOutput::SoundOutput(SoundTarget newTarget) : target(newTarget), device(std::make_unique<SoundDevice>()) {}

SoundOutput::~SoundOutput()
{
    close();
}

SoundResult SoundOutput::create()
{
    return resultOf(target == SoundTarget::Loopback ? device->openLoopback() : device->openDefault());
}

SoundResult SoundOutput::init(int channelCount)
{
    if (!device->isOpen()) return kSoundOk;
    if (!device->createContext()) {
        close();
        return kSoundFailed;
    }
    for (int i = 0; i < channelCount; ++i) {
        auto source = std::make_unique<SoundSource>();
        if (!source->isValid()) {
            close();
            return kSoundFailed;
        }
        channels.push_back(std::move(source));
    }
    return kSoundOk;
}

SoundResult SoundOutput::createSound(const std::string& file, SoundData*& sound)
{
    sound = nullptr;
    std::string error;
    std::unique_ptr<SoundData> loaded = SoundData::load(file, !isSilent(), error);
    if (!loaded) {
        logLine(0) << "couldn't open sound file: " << file << " (" << error << ")" << std::endl;
        return kSoundFailed;
    }
    sounds.push_back(std::move(loaded));
    sound = sounds.back().get();
    return kSoundOk;
}

SoundResult SoundOutput::setMode(SoundData* sound, SoundMode mode)
{
    if (!sound) return kSoundFailed;
    sound->looping = mode == SoundMode::LoopNormal;
    return kSoundOk;
}

SoundResult SoundOutput::playSound(const SoundData* sound, SoundChannel& channel)
{
    channel = {};
    if (!sound) return kSoundFailed;
    if (isSilent()) return kSoundOk;

    int index = findFreeChannel();
    if (index < 0) index = findOldestOneShot();
    if (index < 0) return kSoundFailed;
    SoundSource& source = *channels[static_cast<std::size_t>(index)];
    if (!source.start(*sound, ++plays)) {
        source.stop();
        return kSoundFailed;
    }
    channel = {index, plays};
    return kSoundOk;
}

SoundResult SoundOutput::setVolume(SoundChannel channel, float volume)
{
    if (isSilent()) return kSoundOk;
    SoundSource* source = find(channel);
    return resultOf(source && source->setVolume(volume));
}

SoundResult SoundOutput::setFrequency(SoundChannel channel, float hertz)
{
    if (isSilent()) return kSoundOk;
    SoundSource* source = find(channel);
    return resultOf(source && source->setFrequency(hertz));
}

SoundResult SoundOutput::update()
{
    if (isSilent()) return kSoundOk;
    if (!device->isConnected()) {
        logLine(0) << "The sound device is gone; going on without sound" << std::endl;
        lost = true;
        return kSoundOk;
    }
    bool success = true;
    for (const auto& source : channels) {
        if (source->update()) continue;
        source->stop();
        success = false;
    }
    return resultOf(success);
}

void SoundOutput::render(float* stereo, int frames)
{
    device->render(stereo, frames);
}

void SoundOutput::close()
{
    channels.clear();
    if (device->hasContext()) {
        for (const auto& sound : sounds) sound->releaseBuffer();
    }
    device->close();
}

bool SoundOutput::isSilent() const
{
    return lost || channels.empty();
}

int SoundOutput::findFreeChannel() const
{
    const auto free =
        std::find_if(channels.begin(), channels.end(), [](const auto& source) { return !source->isPlaying(); });
    return free == channels.end() ? -1 : static_cast<int>(free - channels.begin());
}

int SoundOutput::findOldestOneShot() const
{
    int oldest = -1;
    std::uint64_t earliest = plays + 1;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        if (channels[i]->isLooping() || channels[i]->getPlay() >= earliest) continue;
        earliest = channels[i]->getPlay();
        oldest = static_cast<int>(i);
    }
    return oldest;
}

SoundSource* SoundOutput::find(SoundChannel channel) const
{
    if (channel.index < 0 || static_cast<std::size_t>(channel.index) >= channels.size()) return nullptr;
    SoundSource* source = channels[static_cast<std::size_t>(channel.index)].get();
    return source->getPlay() == channel.play ? source : nullptr;
}
