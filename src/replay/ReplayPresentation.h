#pragma once

#include "app/Presentation.h"
#include "render/TextOptions.h"

#include <deque>
#include <memory>

/// The game's own presentation, which can be silenced while a replay jumps, and emptied before it starts over. Sounds
/// that participants have of their own play on from one time to the next.
class ReplayPresentation : public IPresentation {
public:
    ReplayPresentation(Renderer& ownRenderer, const TextOptions& options); ///< the renderer is borrowed

    /// Forget the cars of before, whose world is gone.
    void startOver();

    /// From now on sounds that would begin do not.
    void setQuiet(bool on) { quiet = on; }

    ICarModels& addCar(const CarNodes& nodes, const glm::vec4& colour) override { return real->addCar(nodes, colour); }
    std::shared_ptr<void> addBall(Node& node, const glm::vec4& colour) override { return real->addBall(node, colour); }
    void playSound(const std::string& name, bool loop, float volume) override;
    std::unique_ptr<ISound> createSound(const std::string& name, const std::string& file) override;
    void update() override { real->update(); }
    void addLabel(const PlayerLabel& label, const Viewport::Rect& view) override { real->addLabel(label, view); }
    void addSign(const std::string& sign, const glm::vec3& place, const Viewport& view) override
    {
        real->addSign(sign, place, view);
    }
    glm::ivec2 getWindowSize() const override { return real->getWindowSize(); }

private:
    struct OwnSound {
        std::unique_ptr<ISound> sound;
        bool playing = false;
    };
    class Handle;

    Renderer& renderer;
    const TextOptions text;
    std::unique_ptr<Presentation> real;
    std::deque<OwnSound> ownSounds; // in the order in which they are made, each time
    std::size_t ownSoundsMade = 0;  // this time
    bool quiet = false;
};
