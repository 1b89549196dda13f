#pragma once

#include "app/Presentation.h"

#include <sstream>
#include <string>
#include <vector>

/// The game's own presentation, and a record of what it was asked for.
class RecordingPresentation : public IPresentation {
public:
    explicit RecordingPresentation(Renderer& renderer) : real(renderer) {}

    ICarModels& addCar(const CarNodes& nodes, const glm::vec4& colour) override { return real.addCar(nodes, colour); }
    std::shared_ptr<void> addBall(Node& node, const glm::vec4& colour) override { return real.addBall(node, colour); }
    void playSound(const std::string& name, bool loop, float volume) override
    {
        write(name, loop, volume);
        real.playSound(name, loop, volume);
    }
    std::unique_ptr<ISound> createSound(const std::string& name, const std::string& file) override
    {
        return std::make_unique<RecordedSound>(*this, name, real.createSound(name, file), enginePitches.size());
    }
    void update() override
    {
        ++updates;
        real.update();
    }
    void addText(const std::string& text, double x, double y) override
    {
        texts.push_back(text);
        real.addText(text, x, y);
    }
    glm::ivec2 getWindowSize() const override { return real.getWindowSize(); }

    int updates = 0;
    std::vector<std::string> sounds;  ///< as in "musik, looped, 1", in the order of playing
    std::vector<std::string> texts;   ///< since the test last emptied it
    std::vector<float> enginePitches; ///< that each owned sound was last asked for, in the order of their making

private:
    class RecordedSound final : public ISound {
    public:
        RecordedSound(RecordingPresentation& ownRecord, std::string ownName, std::unique_ptr<ISound> realSound,
            std::size_t ownNumber)
            : record(ownRecord), name(std::move(ownName)), real(std::move(realSound)), number(ownNumber)
        {
            record.enginePitches.push_back(0);
        }
        void play(bool loop, float volume) override
        {
            record.write(name, loop, volume);
            real->play(loop, volume);
        }
        void setPitch(float target) override
        {
            record.enginePitches[number] = target;
            real->setPitch(target);
        }

    private:
        RecordingPresentation& record;
        std::string name;
        std::unique_ptr<ISound> real;
        std::size_t number;
    };

    void write(const std::string& name, bool loop, float volume)
    {
        std::ostringstream line;
        line << name << (loop ? ", looped, " : ", once, ") << volume;
        sounds.push_back(line.str());
    }

    Presentation real;
};
