#include "assets/DriverModel.h"

#include "assets/Library.h"

DriverModel::DriverModel(const glm::vec4& color) : CelModel(color)
{
    makeGeometry(Library::getInstance()->getMesh("Duck"), {MeshAttribute::Position, MeshAttribute::Normal});
}
