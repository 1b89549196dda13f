#pragma once

#include "app/Presentation.h"

#include <deque>
#include <sstream>
#include <string>
#include <vector>

/// The game's own presentation, and a record of what it was asked for.
class RecordingPresentation : public Presentation {
public:
    using Presentation::Presentation;

    void playSound(const std::string& name, bool loop, float volume) override
    {
        write(name, loop, volume);
        Presentation::playSound(name, loop, volume);
    }
    std::unique_ptr<ISound> createSound(const std::string& name, const std::string& file) override
    {
        return std::make_unique<RecordedSound>(*this, name, Presentation::createSound(name, file));
    }
    void update() override
    {
        ++updates;
        Presentation::update();
    }
    void addLabel(const PlayerLabel& label, const Viewport::Rect& view) override
    {
        texts.insert(texts.end(), {label.standing, label.name});
        Presentation::addLabel(label, view);
    }

    int updates = 0;
    std::vector<std::string> sounds; ///< as in "musik, looped, 1", in the order of playing
    std::vector<std::string> texts;  ///< since the test last emptied it
    std::deque<float> enginePitches; ///< that each owned sound was last asked for, in the order of their making

private:
    struct RecordedSound final : ISound {
        RecordedSound(RecordingPresentation& ownRecord, std::string ownName, std::unique_ptr<ISound> realSound)
            : record(ownRecord), name(std::move(ownName)), real(std::move(realSound)),
              pitch(record.enginePitches.emplace_back())
        {
        }
        void play(bool loop, float volume) override
        {
            record.write(name, loop, volume);
            real->play(loop, volume);
        }
        void setPitch(float target) override
        {
            pitch = target;
            real->setPitch(target);
        }

        RecordingPresentation& record;
        std::string name;
        std::unique_ptr<ISound> real;
        float& pitch;
    };

    void write(const std::string& name, bool loop, float volume)
    {
        std::ostringstream line;
        line << name << (loop ? ", looped, " : ", once, ") << volume;
        sounds.push_back(line.str());
    }
};
