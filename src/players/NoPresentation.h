#pragma once

#include "players/IPresentation.h"

/// A presentation without a window: shows nothing, plays nothing.
class NoPresentation : public IPresentation, public ICarModels {
public:
    ICarModels& addCar(const CarNodes&, const glm::vec4&) override { return *this; }
    void setEmitterPosition(const glm::vec3&) override {}
    std::shared_ptr<void> addBall(Node&, const glm::vec4&) override { return nullptr; }
    void playSound(const std::string&, bool, float) override {}
    std::unique_ptr<ISound> createSound(const std::string&, const std::string&) override
    {
        struct Silence final : ISound {
            void play(bool, float) override {}
            void setPitch(float) override {}
        };
        return std::make_unique<Silence>();
    }
    void update() override {}
    void addLabel(const PlayerLabel&, const Viewport::Rect&) override {}
    void addSign(const std::string&, const glm::vec3&, const Viewport&) override {}
    glm::ivec2 getWindowSize() const override { return {1024, 768}; }
};
