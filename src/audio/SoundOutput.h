#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class SoundData;
class SoundDevice;
class SoundSource;

/// What the sound calls return: non-zero is failure.
enum SoundResult : int { kSoundOk = 0, kSoundFailed = 1 };

enum class SoundMode : int { LoopOff = 1, LoopNormal = 2 };

/// Where sounds go: to the machine's loudspeakers, or nowhere until render() mixes them (for tests).
enum class SoundTarget { Speakers, Loopback };

/// A playing of a sound, as playSound gives it. Plain value; one that has given way to a newer sound belongs to nobody.
struct SoundChannel {
    int index = -1;
    std::uint64_t play = 0;
};

/// Sound output over OpenAL Soft (mixing, output) and libsndfile (decoding): a fixed number of channels, sounds from
/// files.
///
/// Owned by the AudioSystem; one open at a time in a process. Order: create, init, then the rest; main thread only.
/// Before that, without a sound device, after the device is lost and after close, the output is silent: its calls check
/// their arguments, succeed and play nothing, so that a failing device is reported once, by create, init or a line in
/// the log, and not by everything that would have been heard.
class SoundOutput {
public:
    explicit SoundOutput(SoundTarget newTarget = SoundTarget::Speakers);
    ~SoundOutput();
    SoundOutput(const SoundOutput&) = delete;
    SoundOutput& operator=(const SoundOutput&) = delete;

    /// Opens the device. Failure: there is none.
    [[nodiscard]] SoundResult create();

    /// Sets up the mix for so many sounds at once. Without a device there is nothing to set up, and it succeeds.
    [[nodiscard]] SoundResult init(int channelCount);

    /// Makes a sound from a file, which stays the output's and lives as long as it. Failure: the file is missing or no
    /// sound that can be played (logged with the reason); `sound` is then null.
    [[nodiscard]] SoundResult createSound(const std::string& file, SoundData*& sound);

    /// What plays of the sound that start from now on do at its end. Failure: null.
    [[nodiscard]] SoundResult setMode(SoundData* sound, SoundMode mode);

    /// Starts the sound on a channel of its own, at full volume. When all are taken the oldest one that does not loop
    /// gives way. Failure: null, all channels loop, or the file of a long sound has gone.
    [[nodiscard]] SoundResult playSound(const SoundData* sound, SoundChannel& channel);

    /// 0 to 1, linear; more counts as 1. Failure: the channel plays something else by now, or the value is negative.
    [[nodiscard]] SoundResult setVolume(SoundChannel channel, float volume);

    /// Plays the file's samples at this rate, in hertz, not negative. Failures as with setVolume.
    [[nodiscard]] SoundResult setFrequency(SoundChannel channel, float hertz);

    /// Decodes ahead and watches the device; to be called at least twice a second, costs a microsecond most of the
    /// time.
    [[nodiscard]] SoundResult update();

    /// Loopback only: mixes the next frames of 44.1 kHz stereo, left and right in turn, full scale is 1.
    void render(float* stereo, int frames);

    /// Ends all sounds and gives the device back.
    void close();

private:
    bool isSilent() const;
    int findFreeChannel() const;
    int findOldestOneShot() const;
    SoundSource* find(SoundChannel channel) const;

    SoundTarget target;
    bool lost = false; ///< the device was taken away
    std::uint64_t plays = 0;
    std::unique_ptr<SoundDevice> device;
    std::vector<std::unique_ptr<SoundData>> sounds;
    std::vector<std::unique_ptr<SoundSource>> channels;
};
