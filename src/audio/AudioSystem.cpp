#include "audio/AudioSystem.h"

#include "base/Logger.h"

#include <cstdlib>

namespace {

constexpr std::size_t kChannels = 32; // sounds at once
constexpr const char* kMusic = "musik";

AudioSystem* createForProcess()
{
    // The sound library complains on standard error about a device that is open when the process ends.
    std::atexit([] { AudioSystem::getInstance()->getOutput().close(); });
    return new AudioSystem(SoundTarget::Speakers);
}

} // namespace

AudioSystem* AudioSystem::getInstance()
{
    static AudioSystem* const instance = createForProcess();
    return instance;
}

void AudioSystem::init(const std::vector<std::pair<std::string, std::string>>& files, const SoundOptions& options)
{
    masterGain = gainOf(options.volume);
    musicGain = gainOf(options.musicVolume);
    effectsGain = gainOf(options.effectsVolume);
    if (!options.mute && !system.open(kChannels, options.device))
        logLine(0) << "Error, initializing Audiosystem!" << std::endl;
    setHeard(true);
    for (const auto& [name, file] : files) addSound(name, file);
}

void AudioSystem::addSound(const std::string& name, const std::string& file)
{
    addSound(name, file, SoundData::decode(file));
}

void AudioSystem::addSound(const std::string& name, const std::string& file, const DecodedSound& decoded)
{
    sounds[name] = createSound(name, file, decoded);
}

std::unique_ptr<Sound> AudioSystem::createSound(const std::string& name, const std::string& file)
{
    return createSound(name, file, SoundData::decode(file));
}

std::unique_ptr<Sound> AudioSystem::createSound(const std::string& name, const std::string& file,
    const DecodedSound& decoded)
{
    return std::make_unique<Sound>(&system, name, file, decoded, name == kMusic ? musicGain : effectsGain);
}

void AudioSystem::play(const std::string& name, bool loop, float volume)
{
    if (const auto& sound = sounds[name]) {
        sound->play(loop, volume);
    } else {
        logLine(1) << "Sound does not exist: " << name << std::endl;
    }
    if (!system.update()) logLine(0) << "Error, updating Audiosystem!" << std::endl;
}

void AudioSystem::update()
{
    static_cast<void>(system.update());
}
