#include "audio/SoundSource.h"

#include "audio/SoundData.h"
#include "audio/SoundStream.h"

#include <AL/alext.h>

#include <cmath>

SoundSource::SoundSource()
{
    alGenSources(1, &source);
    if (alGetError() != AL_NO_ERROR) {
        source = 0;
        return;
    }
    // Both channels go straight to both speakers, so that a volume is what it says; a place in space would weigh them
    // anew.
    alSourcei(source, AL_SOURCE_RELATIVE, AL_TRUE);
    alSourcei(source, AL_DIRECT_CHANNELS_SOFT, AL_TRUE);
}

SoundSource::~SoundSource()
{
    if (!source) return;
    stop();
    alDeleteSources(1, &source);
}

bool SoundSource::start(const SoundData& sound, std::uint64_t newPlay)
{
    stop();
    play = newPlay;
    sampleRate = sound.getSampleRate();
    looping = sound.looping;

    alSourcef(source, AL_GAIN, 1.0f);
    alSourcef(source, AL_PITCH, 1.0f);
    if (sound.isStreamed()) {
        stream = SoundStream::open(sound);
        alSourcei(source, AL_LOOPING, AL_FALSE); // the stream loops; the source would repeat its last pieces
        if (!stream || !stream->start(source)) return false;
    } else {
        alSourcei(source, AL_LOOPING, looping);
        alSourcei(source, AL_BUFFER, static_cast<ALint>(sound.getBuffer()));
    }
    alSourcePlay(source);
    return alGetError() == AL_NO_ERROR;
}

void SoundSource::stop()
{
    alSourceStop(source);
    stream.reset();
    alSourcei(source, AL_BUFFER, 0);
}

bool SoundSource::isPlaying() const
{
    if (stream && !stream->hasEnded()) return true; // one that has run dry goes on with the next update
    ALint state = AL_STOPPED;
    alGetSourcei(source, AL_SOURCE_STATE, &state);
    return state == AL_PLAYING;
}

bool SoundSource::setVolume(float volume)
{
    alSourcef(source, AL_GAIN, volume);
    return alGetError() == AL_NO_ERROR;
}

bool SoundSource::setFrequency(float hertz)
{
    if (!std::isfinite(hertz)) return false;
    alSourcef(source, AL_PITCH, hertz / static_cast<float>(sampleRate));
    return alGetError() == AL_NO_ERROR;
}

bool SoundSource::update()
{
    return !stream || stream->refill();
}
