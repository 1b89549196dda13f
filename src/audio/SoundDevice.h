#pragma once

#include <AL/alc.h>

#include <memory>
#include <string>
#include <vector>

enum class SoundTarget;

/// A device of the sound library with the context that its sources and buffers live in. Owned by the SoundOutput; the
/// process's one current context is that of the device opened last, so there is one at a time.
class SoundDevice {
public:
    /// Open a device, of the loudspeakers the one of that name, or with an empty one the system's own choice, and make
    /// its context current. Null when there is none.
    static std::unique_ptr<SoundDevice> open(SoundTarget target, const std::string& name = "");

    ~SoundDevice();
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;

    /// False from the moment in which the machine takes the device away.
    bool isConnected() const;

    /// Loopback only: mix the next frames, one sample for each loudspeaker in turn; full scale is 1.
    void render(float* samples, int frames);

private:
    explicit SoundDevice(ALCdevice* opened) : device(opened) {}

    ALCdevice* device;
    ALCcontext* context = nullptr;
};

/// Return the names of the machine's loudspeakers and the like, the system's own choice first.
std::vector<std::string> soundDeviceNames();

/// Return the sound library's name and version, as it tells them itself.
std::string soundLibraryVersion();
