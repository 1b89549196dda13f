#pragma once

#include "players/IPresentation.h"

#include <map>
#include <optional>
#include <utility>
#include <vector>

/// A presentation without a window: shows nothing, plays nothing, but remembers what it was asked for.
class SilentPresentation : public IPresentation, public ICarModels {
public:
    struct Line {
        std::string text;
        double x, y;
    };

    ICarModels& addCar(const CarNodes& nodes, const glm::vec4& colour) override
    {
        cars.push_back(nodes);
        colours.push_back(colour);
        return *this;
    }
    void setEmitterPosition(const glm::vec3& position) override { emitterPosition = position; }
    std::shared_ptr<void> addBall(Node&, const glm::vec4&) override { return nullptr; }
    void playSound(const std::string& name, bool, float volume) override
    {
        ++sounds[{name, volume}];
        lastVolume = volume;
    }
    std::unique_ptr<ISound> createSound(const std::string&, const std::string&) override
    {
        return std::make_unique<Engine>(*this);
    }
    void update() override {}
    void addText(const std::string& text, double x, double y) override { lines.push_back({text, x, y}); }
    glm::ivec2 getWindowSize() const override { return {1024, 768}; }

    /// Return how often that sound was played, at that volume or at any.
    int count(const std::string& name, std::optional<float> volume = {}) const
    {
        int times = 0;
        for (const auto& [sound, played] : sounds) {
            if (sound.first == name && sound.second == volume.value_or(sound.second)) times += played;
        }
        return times;
    }

    std::vector<CarNodes> cars;
    std::vector<glm::vec4> colours;
    std::map<std::pair<std::string, float>, int> sounds; ///< how often each was played at each volume
    float lastVolume = 0;                                ///< of the sound played last
    float enginePitch = 0;                               ///< that was last asked for
    std::vector<Line> lines;                             ///< of the last pass
    glm::vec3 emitterPosition{0.0f};                     ///< of whoever smoked last

private:
    struct Engine final : ISound {
        explicit Engine(SilentPresentation& ownPresentation) : presentation(ownPresentation) {}
        void play(bool, float) override {}
        void setPitch(float target) override { presentation.enginePitch = target; }

        SilentPresentation& presentation;
    };
};
