#pragma once

#include <AL/alc.h>

/// A device of the sound library with the context that its sources and buffers live in. Owned by the SoundOutput; the
/// process's one current context is that of the device opened last, so there is one at a time.
class SoundDevice {
public:
    SoundDevice() = default;
    ~SoundDevice() { close(); }
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;

    bool openDefault(); ///< what the machine's listeners hear

    bool openLoopback(); ///< mixes on demand, see render

    /// Makes the context, after one of the two above, and makes it current.
    bool createContext();

    bool isOpen() const { return device != nullptr; }
    bool hasContext() const { return context != nullptr; }

    /// False from the moment in which the machine takes the device away.
    bool isConnected() const;

    /// Loopback only: mixes the next frames, left and right in turn, full scale is 1.
    void render(float* stereo, int frames);

    void close();

    static constexpr int kLoopbackRate = 44100; // hertz

private:
    ALCdevice* device = nullptr;
    ALCcontext* context = nullptr;
    bool loopback = false;
};
