#pragma once

#include "audio/ISound.h"
#include "players/PlayerLabel.h"
#include "scene/Viewport.h"

#include <glm/glm.hpp>

#include <array>
#include <memory>
#include <string>

class Node;

/// The nodes of a car that carry something to see.
struct CarNodes {
    Node* driver = nullptr;
    std::array<Node*, 4> wheels{}; ///< front left, front right, rear left, rear right; a wheel's axis is y
    Node* exhaust = nullptr; ///< stays at the origin of the world: smoke does not travel with the car that left it
};

/// The drawn parts of a car: duck, tyres, smoke. Owned by the presentation.
class ICarModels {
public:
    /// Set where the exhaust smoke comes from, in world space. Once per frame.
    virtual void setEmitterPosition(const glm::vec3& position) = 0;

protected:
    ~ICarModels() = default;
};

/// How a match is seen and heard. The game implements it with real models and sounds; a match without a window has one
/// that shows nothing. Outlives the match.
class IPresentation {
public:
    virtual ~IPresentation() = default;

    /// Hang the duck, in the player's colour, the tyres and the exhaust smoke on the nodes of a car. Once per car.
    virtual ICarModels& addCar(const CarNodes& nodes, const glm::vec4& colour) = 0;

    /// Hang a shot's ball, in the shooter's colour, on its node. The ball is seen as long as what is returned lives.
    [[nodiscard]] virtual std::shared_ptr<void> addBall(Node& node, const glm::vec4& colour) = 0;

    /// Play a sound by its name; volume 0 to 1.
    virtual void playSound(const std::string& name, bool loop, float volume) = 0;

    /// Load a sound that only its owner plays.
    [[nodiscard]] virtual std::unique_ptr<ISound> createSound(const std::string& name, const std::string& file) = 0;

    /// Keep what is heard going. Once per frame.
    virtual void update() = 0;

    /// Write what a player is told, for this frame. view: the player's own, pixels.
    virtual void addLabel(const PlayerLabel& label, const Viewport::Rect& view) = 0;

    /// Write the sign of a car that is at that place, in world space, into one view of this frame; if cars have signs.
    virtual void addSign(const std::string& sign, const glm::vec3& place, const Viewport& view) = 0;

    virtual glm::ivec2 getWindowSize() const = 0; ///< pixels
};
