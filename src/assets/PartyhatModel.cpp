#include "assets/PartyhatModel.h"

#include "assets/Library.h"
#include "assets/MeshGeometry.h"
#include "scene/Mesh.h"

namespace {

/// Smooth normals from the faces, then (x, y, z) to (x, -z, y): the file's hat lies on its side.
void rebuildNormals(Mesh& mesh)
{
    mesh.calculateNormals();
    mesh.swapNormalAxes(false, true, true);
    mesh.invertNormalAxes(false, true, false);
}

} // namespace

PartyhatModel::PartyhatModel(const glm::vec4& color)
{
    bindUniforms({.normalMatrix = true, .color = color});
    Mesh* mesh = Library::getInstance()->getMesh("Partyhat");
    if (!mesh) return;
    rebuildNormals(*mesh);
    geometry = std::make_unique<MeshGeometry>(*mesh,
        std::initializer_list<MeshAttribute>{MeshAttribute::Position, MeshAttribute::Normal});
    setGeometry(*geometry);
}

PartyhatModel::~PartyhatModel() = default;
