#include "assets/DriverModel.h"

#include "assets/Library.h"
#include "assets/MeshGeometry.h"
#include "scene/Mesh.h"

DriverModel::DriverModel(const glm::vec4& color)
{
    bindUniforms({.normalMatrix = true, .color = color});
    const Mesh* mesh = Library::getInstance()->getMesh("Duck");
    if (!mesh) return;
    geometry = std::make_unique<MeshGeometry>(*mesh,
        std::initializer_list<MeshAttribute>{MeshAttribute::Position, MeshAttribute::Normal});
    setGeometry(*geometry);
}

DriverModel::~DriverModel() = default;
