#include "app/TerrainModel.h"

#include "assets/Library.h"
#include "physics/Terrain.h"
#include "scene/Mesh.h"

namespace {

Mesh meshOf(const Terrain& terrain)
{
    Mesh mesh;
    mesh.positions = terrain.getVertices();
    mesh.indices = terrain.getIndices();
    mesh.calculateNormals();
    return mesh;
}

} // namespace

TerrainModel::TerrainModel(const Terrain& terrain)
    : geometry(meshOf(terrain), {MeshAttribute::Position, MeshAttribute::Normal}),
      transformation(this),
      grass(Library::getInstance()->getTexture("Grass"), 0),
      dirt(Library::getInstance()->getTexture("Dirt"), 1)
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
