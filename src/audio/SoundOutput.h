#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

class SoundData;
class SoundDevice;
class SoundSource;

/// Where sounds go: to the machine's loudspeakers, or nowhere until they are rendered (for tests), at 44.1 kHz in a
/// layout of loudspeakers: two, one, or six.
enum class SoundTarget { Speakers, Loopback, MonoLoopback, SurroundLoopback };

/// A playing of a sound, for as long as it has not ended or given way to a newer one.
using SoundChannel = std::weak_ptr<SoundSource>;

/// Sound output over OpenAL Soft: a fixed number of channels that play decoded sounds.
///
/// Owned by the AudioSystem; one open at a time in a process. Order: open, then the rest; main thread only. Before
/// that, without a sound device, after the device is lost and after close, the output is silent: its calls succeed and
/// play nothing, so that a failing device is reported once, and not by everything that would have been heard.
class SoundOutput {
public:
    explicit SoundOutput(SoundTarget ownTarget);
    ~SoundOutput();
    SoundOutput(const SoundOutput&) = delete;
    SoundOutput& operator=(const SoundOutput&) = delete;

    /// Open the device, for so many sounds at once: the one of that name, or else (for a name that is not empty, with a
    /// log line) the system's own choice. False when there is none.
    [[nodiscard]] bool open(std::size_t channelCount, const std::string& deviceName = "");

    /// Set a factor of everything that is heard, 0 to 1.
    void setGain(float gain);

    /// Start a sound on a channel of its own; volume 0 to 1, linear, more counts as 1. When all are taken the oldest
    /// one that does not loop gives way. False when all loop, or the sound library refuses.
    [[nodiscard]] bool play(const std::shared_ptr<const SoundData>& sound, bool loop, float volume,
        SoundChannel& channel);

    /// Watch the device, and log its loss. False when the sound library has refused something since the last call.
    [[nodiscard]] bool update();

    /// Loopback only: mix the next frames, one sample for each loudspeaker in turn; full scale is 1.
    void render(float* samples, int frames);

    /// End all sounds and give the device back.
    void close();

private:
    bool makeRoom();

    SoundTarget target;
    std::size_t channelLimit = 0;
    std::unique_ptr<SoundDevice> device;                ///< null: the output is silent
    std::vector<std::shared_ptr<SoundSource>> channels; ///< oldest first
};
