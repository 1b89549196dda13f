#include "audio/SoundDevice.h"

#include "audio/SoundOutput.h"

#define AL_ALEXT_PROTOTYPES
#include <AL/alext.h>

#include <array>

namespace {

/// Return the context's attributes. What plays is no place in space, so that headphones get what two loudspeakers do;
/// and what adds up to more than full scale, as two sides on one loudspeaker may, is turned down before it clips.
std::array<ALCint, 7> attributesFor(SoundTarget target)
{
    if (target == SoundTarget::Speakers) return {ALC_HRTF_SOFT, ALC_FALSE, ALC_OUTPUT_LIMITER_SOFT, ALC_TRUE};

    constexpr int kLoopbackRate = 44100; // hertz
    const ALCint layout = target == SoundTarget::MonoLoopback ? ALC_MONO_SOFT
        : target == SoundTarget::SurroundLoopback             ? ALC_5POINT1_SOFT
                                                              : ALC_STEREO_SOFT;
    return {ALC_FORMAT_CHANNELS_SOFT, layout, ALC_FORMAT_TYPE_SOFT, ALC_FLOAT_SOFT, ALC_FREQUENCY, kLoopbackRate};
}

} // namespace

std::unique_ptr<SoundDevice> SoundDevice::open(SoundTarget target, const std::string& name)
{
    ALCdevice* const opened = target == SoundTarget::Speakers ? alcOpenDevice(name.empty() ? nullptr : name.c_str())
                                                              : alcLoopbackOpenDeviceSOFT(nullptr);
    if (!opened) return nullptr;

    std::unique_ptr<SoundDevice> device(new SoundDevice(opened));
    device->context = alcCreateContext(opened, attributesFor(target).data());
    if (!device->context || !alcMakeContextCurrent(device->context)) return nullptr;
    return device;
}

SoundDevice::~SoundDevice()
{
    if (context) {
        alcMakeContextCurrent(nullptr);
        alcDestroyContext(context);
    }
    alcCloseDevice(device);
}

bool SoundDevice::isConnected() const
{
    ALCint connected = ALC_TRUE;
    alcGetIntegerv(device, ALC_CONNECTED, 1, &connected);
    return connected == ALC_TRUE;
}

void SoundDevice::render(float* samples, int frames)
{
    alcRenderSamplesSOFT(device, samples, frames);
}

std::vector<std::string> soundDeviceNames()
{
    std::vector<std::string> names;
    const ALCchar* name = alcGetString(nullptr, ALC_ALL_DEVICES_SPECIFIER);
    for (; name && *name; name += names.back().size() + 1) names.emplace_back(name);
    return names;
}

std::string soundLibraryVersion()
{
    const std::unique_ptr<SoundDevice> silent = SoundDevice::open(SoundTarget::Loopback); // only a context knows
    const ALchar* const version = silent ? alGetString(AL_VERSION) : nullptr;
    return version ? version : "unknown";
}
