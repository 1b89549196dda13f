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

PartyhatModel::PartyhatModel(const glm::vec4& hatColor, QKD_Game* game)
    : mesh(Library::getInstance()->getMesh("Partyhat")), color(hatColor), owner(game), transformation(this),
      colourSource(hatColor)
{
    bindCameraUniforms(true);
    uniforms["color"] = &colourSource;
    uniforms["model"] = &transformation;
    if (!mesh) return;
    rebuildNormals(*mesh);
    geometry = std::make_unique<MeshGeometry>(*mesh,
        std::initializer_list<MeshAttribute>{MeshAttribute::Position, MeshAttribute::Normal});
    setGeometry(*geometry);
}

PartyhatModel::~PartyhatModel() = default;
