#include "replay/ReplayPresentation.h"

/// What a participant holds of its sound.
class ReplayPresentation::Handle : public ISound {
public:
    explicit Handle(OwnSound& ownSound) : own(ownSound) {}

    void play(bool loop, float volume) override
    {
        if (!own.playing) own.sound->play(loop, volume);
        own.playing = true;
    }
    void setPitch(float target) override { own.sound->setPitch(target); }

private:
    OwnSound& own;
};

ReplayPresentation::ReplayPresentation(Renderer& ownRenderer, const TextOptions& options)
    : renderer(ownRenderer), text(options), real(std::make_unique<Presentation>(renderer, text))
{
}

void ReplayPresentation::startOver()
{
    real = std::make_unique<Presentation>(renderer, text);
    ownSoundsMade = 0;
}

void ReplayPresentation::playSound(const std::string& name, bool loop, float volume)
{
    if (!quiet) real->playSound(name, loop, volume);
}

std::unique_ptr<ISound> ReplayPresentation::createSound(const std::string& name, const std::string& file)
{
    if (ownSoundsMade == ownSounds.size()) ownSounds.push_back({real->createSound(name, file)});
    return std::make_unique<Handle>(ownSounds[ownSoundsMade++]);
}
