#include "assets/PartyhatModel.h"

#include "assets/Library.h"
#include "scene/Mesh.h"

namespace {

/// Compute smooth normals from the faces; then turn (x, y, z) into (x, -z, y), since the file's hat lies on its side.
void rebuildNormals(Mesh& mesh)
{
    mesh.calculateNormals();
    mesh.swapNormalAxes(false, true, true);
    mesh.invertNormalAxes(false, true, false);
}

} // namespace

PartyhatModel::PartyhatModel(const glm::vec4& color) : CelModel(color)
{
    Mesh* mesh = Library::getInstance()->getMesh("Partyhat");
    if (mesh) rebuildNormals(*mesh);
    makeGeometry(mesh, {MeshAttribute::Position, MeshAttribute::Normal});
}
