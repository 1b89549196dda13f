#pragma once

#include "audio/Sound.h"
#include "audio/SoundOptions.h"
#include "audio/SoundOutput.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// The game's sounds by name, and the output that they are heard from. One for the process; init comes first, then
/// update once per frame. Nothing here stops the game: what fails is logged, and without a sound device all goes on in
/// silence.
class AudioSystem {
public:
    /// Return the process's own, made on the first call and never destroyed; its device is given back at the end.
    static AudioSystem* getInstance();

    /// Make one for a test; at most one has an open output at a time.
    explicit AudioSystem(SoundTarget target) : system(target) {}

    /// Open the output and load the sounds, given as pairs of name and file.
    void init(const std::vector<std::pair<std::string, std::string>>& files, const SoundOptions& options = {});

    /// Load a sound under a name, in place of the one that had it.
    void addSound(const std::string& name, const std::string& file);

    /// Likewise, with what SoundData::decode has made of the file.
    void addSound(const std::string& name, const std::string& file, const DecodedSound& decoded);

    /// Load a sound that only its caller plays: play does not find it.
    std::unique_ptr<Sound> createSound(const std::string& name, const std::string& file);

    /// Play a sound by name; volume 0 to 1.
    void play(const std::string& name, bool loop, float volume);

    void update();

    /// Go on in silence, or be heard again.
    void setHeard(bool heard) { system.setGain(heard ? masterGain : 0.0f); }

    SoundOutput& getOutput() { return system; }

private:
    std::unique_ptr<Sound> createSound(const std::string& name, const std::string& file, const DecodedSound& decoded);

    SoundOutput system;
    float masterGain = 1.0f;
    float musicGain = 1.0f;
    float effectsGain = 1.0f;
    std::map<std::string, std::unique_ptr<Sound>> sounds;
};
