#include "audio/SoundSource.h"

#include "audio/SoundData.h"

#include <AL/alext.h>

std::shared_ptr<SoundSource> SoundSource::start(std::shared_ptr<const SoundData> sound, bool loop, float volume)
{
    std::shared_ptr<SoundSource> started(new SoundSource(std::move(sound), loop));
    ALuint& source = started->source;
    alGenSources(1, &source);

    // Each side to its own loudspeaker, and both to the one where there is but one. A library as old as 1.19 does not
    // know the word, which is then 0: it places the sides in front of the listener. That is the same on one and on two
    // loudspeakers, and spreads them a little on more; its other way is to drop what has no loudspeaker of its own.
    alSourcei(source, AL_DIRECT_CHANNELS_SOFT, alGetEnumValue("AL_REMIX_UNMATCHED_SOFT"));
    alSourcef(source, AL_GAIN, volume);
    alSourcei(source, AL_LOOPING, loop);
    alSourcei(source, AL_BUFFER, static_cast<ALint>(started->sound->getBuffer()));
    alSourcePlay(source);
    return alGetError() == AL_NO_ERROR ? started : nullptr;
}

SoundSource::~SoundSource()
{
    if (source) alDeleteSources(1, &source);
}

bool SoundSource::isPlaying() const
{
    ALint state = AL_STOPPED;
    alGetSourcei(source, AL_SOURCE_STATE, &state);
    return state == AL_PLAYING;
}

void SoundSource::setFrequency(float hertz)
{
    alSourcef(source, AL_PITCH, hertz / static_cast<float>(sound->getSampleRate()));
}
