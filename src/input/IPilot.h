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

/// The field as a computer driver sees it.
class IField {
public:
    virtual int getActorCount() const = 0;                ///< participants that have joined so far
    virtual const IPilot& getPilot(int number) const = 0; ///< number: 0 to getActorCount() - 1, in order of joining
    virtual int getFieldSize() const = 0;                 ///< edge length in world units

protected:
    ~IField() = default;
};
