#include "app/TerrainModel.h"

#include "assets/IRenderServices.h"
#include "assets/Library.h"
#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"
#include "physics/Terrain.h"
#include "scene/Camera.h"
#include "scene/Mesh.h"
#include "scene/Node.h"

#include <limits>

namespace {

constexpr unsigned kIndicesPerRun = 9 * 6; // nine cells of a row, of two triangles each
constexpr float kFineDistance = 12;        // world units from the eye within which an edge is split
constexpr float kEverywhere = std::numeric_limits<float>::infinity();

Mesh meshOf(const Terrain& terrain)
{
    Mesh mesh;
    mesh.positions = terrain.getVertices();
    mesh.indices = terrain.getIndices();
    mesh.calculateNormals();
    return mesh;
}

} // namespace

TerrainModel::TerrainModel(const Terrain& terrain) : TerrainModel(meshOf(terrain)) {}

TerrainModel::TerrainModel(const Mesh& mesh)
    : geometry(mesh, {MeshAttribute::Position, MeshAttribute::Normal}), culler(mesh, kIndicesPerRun),
      grass(Library::getInstance()->getTexture("Grass"), 0), dirt(Library::getInstance()->getTexture("Dirt"), 1),
      farGround(*this)
{
    setUp(*this, "TerrainShader");
    setName("Heightfield");
    drawMode = GL_PATCHES;
}

TerrainModel::FarGround::FarGround(TerrainModel& ownGround) : ground(ownGround)
{
    ground.setUp(*this, "TerrainFar");
    castsShadow = false;
}

void TerrainModel::setUp(Model& model, const char* programName)
{
    model.shader = Library::getInstance()->getShaderprogram(programName);
    model.setCullable(false);
    model.isStatic = true;
    model.layer = ModelLayer::Ground;
    model.setGeometry(geometry);
    model.bindUniforms({});
    model.uniforms["tex_grass"] = &grass;
    model.uniforms["tex_dirt"] = &dirt;
}

void TerrainModel::attachTo(Node& mapNode)
{
    mapNode.attach(this);
    mapNode.attach(&farGround);
}

void TerrainModel::draw()
{
    shader->setUniform("fineDistance", kFineDistance);
    draw(*this, 0, farGround.isDrawable() ? kFineDistance : kEverywhere);
}

void TerrainModel::FarGround::draw()
{
    ground.draw(*this, kFineDistance, kEverywhere);
}

/// Draw what the camera being drawn may see of the ground at these distances from it, in world units.
void TerrainModel::draw(const Model& model, float from, float to) const
{
    const Camera& camera = *IRenderServices::current()->getCurrentCamera();
    const glm::mat4 toEye = camera.getView() * getNode()->getWorldTransform();
    std::vector<GLsizei> counts;
    std::vector<unsigned> firsts;
    for (const IndexRange& range :
        culler.visible(camera.getProjection() * toEye, glm::vec3(glm::inverse(toEye)[3]), from, to)) {
        counts.push_back(static_cast<GLsizei>(range.count));
        firsts.push_back(range.first);
    }
    drawVertexArrayRanges(model.vao, model.drawMode, geometry.indices, counts, firsts);
}
