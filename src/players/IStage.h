#pragma once

#include <glm/glm.hpp>

#include <array>
#include <string>

class Attachable;
class Node;

/// The nodes of a car that carry something to see.
struct CarNodes {
    Node* driver = nullptr;
    std::array<Node*, 4> wheels{}; ///< front left, front right, rear left, rear right; a wheel's axis is y
    Node* exhaust = nullptr; ///< stays at the origin of the world: smoke does not travel with the car that left it
};

/// What a car's dress takes from its car in every frame. Owned by the stage.
class ICarDress {
public:
    /// Where the exhaust smoke comes from, in world space.
    virtual void setEmitterPosition(const glm::vec3& position) = 0;

    /// How far the throttle is open, 0 to 1: the engine's sound follows it. Only asked of cars that are heard.
    virtual void setThrottle(float throttle) = 0;

protected:
    ~ICarDress() = default;
};

/// What participants ask of picture and sound. The game implements it with real models; a match without a window has
/// one that shows nothing.
class IStage {
public:
    /// Hangs the duck, in the player's colour, the tyres and the exhaust smoke on the nodes of a car, and starts its
    /// engine if it is to be heard. Once per car.
    virtual ICarDress& dressCar(const CarNodes& nodes, const glm::vec4& colour, bool isHeard) = 0;

    /// Hangs a shot's ball, in the shooter's colour, on its node. Null when there is nothing to see.
    virtual Attachable* dressBall(Node& node, const glm::vec4& colour) = 0;
    virtual void undressBall(Attachable* model) = 0; ///< deletes what dressBall gave

    /// Plays a named sound once; volume 0 to 1.
    virtual void playSound(const std::string& name, float volume) = 0;

    /// Writes a line of text for this frame; x and y in normalised device coordinates of the whole window, at the
    /// lower-left of the first letter.
    virtual void addText(const std::string& text, double x, double y) = 0;

    virtual glm::ivec2 getWindowSize() const = 0; ///< pixels

protected:
    ~IStage() = default;
};
