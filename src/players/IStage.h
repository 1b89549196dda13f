#pragma once

#include <glm/glm.hpp>

#include <array>
#include <string>

class Node;

/// The nodes of a car that carry something to see.
struct CarNodes {
    Node* driver = nullptr;
    std::array<Node*, 4> wheels{}; ///< front left, front right, rear left, rear right; a wheel's axis is y
    Node* exhaust = nullptr;       ///< stays at the origin of the world: smoke does not travel with the car that left it
};

/// What a car's dress takes from its car in every frame. Owned by the stage.
class ICarDress {
public:
    /// Where the exhaust smoke comes from, in world space.
    virtual void setEmitterPosition(const glm::vec3& position) = 0;

protected:
    ~ICarDress() = default;
};

/// What participants ask of picture and sound. The game implements it with real models; a match without a window has one that shows nothing.
class IStage {
public:
    /// Hangs the duck, in the player's colour, the tyres and the exhaust smoke on the nodes of a car. Once per car.
    virtual ICarDress& dressCar(const CarNodes& nodes, const glm::vec4& colour) = 0;

    /// Writes a line of text for this frame; x and y in normalised device coordinates of the whole window, at the lower-left of the
    /// first letter.
    virtual void addText(const std::string& text, double x, double y) = 0;

    virtual glm::ivec2 getWindowSize() const = 0; ///< pixels

protected:
    ~IStage() = default;
};
