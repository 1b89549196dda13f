#pragma once

#include "assets/CelModel.h"

#include <glm/glm.hpp>

#include <memory>

class Mesh;
class QKD_Game;

/// The duck at the wheel: the library's mesh "Duck". The player that owns it fills its uniform table.
class DriverModel final : public CelModel {
public:
    DriverModel(QKD_Game* game, const glm::vec4& driverColor);
    ~DriverModel();

    std::string getName() const override { return "Driver"; }
    QKD_Game* getOwner() const { return owner; }
    const glm::vec4& getColor() const { return color; }

private:
    Mesh* mesh; ///< null when it failed to load
    QKD_Game* owner;
    glm::vec4 color;
    std::unique_ptr<MeshGeometry> geometry;
};
