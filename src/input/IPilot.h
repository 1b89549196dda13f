#pragma once

#include <glm/glm.hpp>

/// A car as a computer driver sees it: its own or an opponent's. Poses are those of the last scene update, in world
/// space.
class IPilot {
public:
    virtual glm::vec3 getPosition() const = 0;         ///< of the chassis
    virtual glm::mat4 getChassisTransform() const = 0; ///< front +z, up +y, the driver's right -x
    virtual glm::mat4 getLaunchTransform() const = 0;  ///< where shots leave the car, along +z
    virtual float getForwardSpeed() const = 0;         ///< units per second; negative backwards
    virtual int getDeaths() const = 0;

protected:
    ~IPilot() = default;
};

/// Who there is to chase.
class IHunt {
public:
    /// The opponent that suits the hunter best: near and ahead. Null when there is none but the excluded one (which may
    /// be null).
    virtual const IPilot* findTarget(const IPilot& hunter, const IPilot* excluded) const = 0;

protected:
    ~IHunt() = default;
};
