#pragma once

/// A sound that its owner plays and tunes. Sound is the one that is heard.
class ISound {
public:
    virtual ~ISound() = default;

    /// Start the sound on a new channel, which setPitch then goes for; what played before plays on. Volume 0 to 1.
    virtual void play(bool loop, float volume) = 0;

    /// Move the pitch by one step towards the target (-1 to 1). Once per frame.
    virtual void setPitch(float target) = 0;
};
