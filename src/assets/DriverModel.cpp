#include "assets/DriverModel.h"

#include "assets/Library.h"
#include "assets/MeshGeometry.h"
#include "scene/Mesh.h"

DriverModel::DriverModel(QKD_Game* game, const glm::vec4& driverColor)
    : mesh(Library::getInstance()->getMesh("Duck")), owner(game), color(driverColor)
{
    if (!mesh) return;
    geometry = std::make_unique<MeshGeometry>(*mesh,
        std::initializer_list<MeshAttribute>{MeshAttribute::Position, MeshAttribute::Normal});
    setGeometry(*geometry);
}

DriverModel::~DriverModel() = default;
