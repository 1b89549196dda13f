#include "audio/SoundDevice.h"

#define AL_ALEXT_PROTOTYPES
#include <AL/alext.h>

#include <array>

bool SoundDevice::openDefault()
{
    device = alcOpenDevice(nullptr);
    return device != nullptr;
}

bool SoundDevice::openLoopback()
{
    device = alcLoopbackOpenDeviceSOFT(nullptr);
    loopback = device != nullptr;
    return loopback;
}

bool SoundDevice::createContext()
{
    if (!device) return false;
    constexpr std::array<ALCint, 7> kLoopbackFormat = {ALC_FORMAT_CHANNELS_SOFT, ALC_STEREO_SOFT, ALC_FORMAT_TYPE_SOFT,
        ALC_FLOAT_SOFT, ALC_FREQUENCY, kLoopbackRate, 0};
    context = alcCreateContext(device, loopback ? kLoopbackFormat.data() : nullptr);
    return context && alcMakeContextCurrent(context);
}

bool SoundDevice::isConnected() const
{
    ALCint connected = ALC_TRUE;
    alcGetIntegerv(device, ALC_CONNECTED, 1, &connected);
    return connected == ALC_TRUE;
}

void SoundDevice::render(float* stereo, int frames)
{
    if (loopback) alcRenderSamplesSOFT(device, stereo, frames);
}

void SoundDevice::close()
{
    if (context) {
        alcMakeContextCurrent(nullptr);
        alcDestroyContext(context);
    }
    if (device) alcCloseDevice(device);
    context = nullptr;
    device = nullptr;
    loopback = false;
}
