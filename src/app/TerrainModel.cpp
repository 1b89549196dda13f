#include "app/TerrainModel.h"

#include "assets/Library.h"
#include "gpu/DrawCalls.h"
#include "physics/Terrain.h"
#include "scene/Mesh.h"

namespace {

constexpr unsigned kIndicesPerRun = 9 * 6; // nine cells of a row, of two triangles each

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
    : geometry(mesh, {MeshAttribute::Position, MeshAttribute::Normal}), culler(mesh, kIndicesPerRun), transformation(this),
      grass(Library::getInstance()->getTexture("Grass"), 0), dirt(Library::getInstance()->getTexture("Dirt"), 1)
{
    shader = Library::getInstance()->getShaderprogram("TerrainShader");
    setName("Heightfield");
    setCullable(false);
    isStatic = true;
    layer = ModelLayer::Ground;
    drawMode = GL_PATCHES;
    setGeometry(geometry);
    bindCameraUniforms(false);
    uniforms["model"] = &transformation;
    uniforms["tex_grass"] = &grass;
    uniforms["tex_dirt"] = &dirt;
}

void TerrainModel::draw()
{
    const glm::mat4 view = boost::get<IUniform<glm::mat4>*>(uniforms["view"])->get();
    const glm::mat4 projection = boost::get<IUniform<glm::mat4>*>(uniforms["projection"])->get();
    std::vector<GLsizei> counts;
    std::vector<unsigned> firsts;
    for (const IndexRange& range : culler.visible(projection * view * transformation.get())) {
        counts.push_back(static_cast<GLsizei>(range.count));
        firsts.push_back(range.first);
    }
    drawVertexArrayRanges(vao, drawMode, geometry.indices, counts, firsts);
}
