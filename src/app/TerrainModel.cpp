#include "app/TerrainModel.h"

#include "assets/IRenderServices.h"
#include "assets/Library.h"
#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"
#include "physics/Terrain.h"
#include "render/Light.h"
#include "scene/Camera.h"
#include "scene/Mesh.h"
#include "scene/Node.h"

#include <limits>

namespace {

constexpr unsigned kIndicesPerRun = 9 * 6; // nine cells of a row, of two triangles each
constexpr float kFineDistance = 12;        // world units from the eye within which an edge is split
constexpr float kSunnyCosine = 0.65f;      // least, between normal and light, for the shadow's bias to cover a slope
constexpr float kEverywhere = std::numeric_limits<float>::infinity();

Mesh meshOf(const Terrain& terrain)
{
    Mesh mesh;
    mesh.positions = terrain.getVertices();
    mesh.indices = terrain.getIndices();
    mesh.calculateNormals();
    return mesh;
}

/// Return whether the ground may lie in its own shadow somewhere. A height field doesn't where each triangle faces the
/// light.
bool mayShadeItself(const Mesh& mesh)
{
    const auto corner = [&](std::size_t i) { return mesh.positions[mesh.indices[i]]; };
    for (std::size_t i = 0; i + 2 < mesh.indices.size(); i += 3) {
        const glm::vec3 across = glm::cross(corner(i + 1) - corner(i), corner(i + 2) - corner(i));
        const glm::vec3 up = across.y < 0 ? -across : across;
        if (glm::dot(up, towardsLight()) < kSunnyCosine * glm::length(up)) return true;
    }
    return false;
}

} // namespace

TerrainModel::TerrainModel(const Terrain& terrain) : TerrainModel(meshOf(terrain)) {}

TerrainModel::TerrainModel(const Mesh& mesh)
    : geometry(mesh, {MeshAttribute::Position, MeshAttribute::Normal}), culler(mesh, kIndicesPerRun),
      shadesItself(mayShadeItself(mesh)), grass(Library::getInstance()->getTexture("Grass"), 0),
      dirt(Library::getInstance()->getTexture("Dirt"), 1), farGround(*this, "TerrainFar", Light::Shaded),
      sunnyGround(*this, "TerrainSunny", Light::Sunny)
{
    setUp(*this, "TerrainShader");
    setName("Heightfield");
    drawMode = GL_PATCHES;
}

TerrainModel::FarGround::FarGround(TerrainModel& ownGround, const char* programName, Light ownLight)
    : ground(ownGround), light(ownLight)
{
    ground.setUp(*this, programName);
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
    mapNode.attach(&sunnyGround);
}

void TerrainModel::draw()
{
    shader->setUniform("fineDistance", kFineDistance);
    draw(*this, visible(0, farGround.isDrawable() ? kFineDistance : kEverywhere));
}

void TerrainModel::FarGround::draw()
{
    ground.drawFar(*this, light);
}

void TerrainModel::drawFar(const Model& model, Light light) const
{
    if (!farGround.isDrawable()) return; // the patches reach everywhere
    std::vector<const RangeCuller::Run*> runs = visible(kFineDistance, kEverywhere);
    std::erase_if(runs, [&](const RangeCuller::Run* run) { return lightOf(*run) != light; });
    draw(model, runs);
}

TerrainModel::Light TerrainModel::lightOf(const RangeCuller::Run& run) const
{
    const bool isShaded = shadesItself || !sunnyGround.isDrawable() ||
        IRenderServices::current()->mayBeShaded(getNode()->getWorldTransform(), run.min, run.max);
    return isShaded ? Light::Shaded : Light::Sunny;
}

/// Return what the camera being drawn may see of the ground at these distances from it, in world units.
std::vector<const RangeCuller::Run*> TerrainModel::visible(float from, float to) const
{
    const Camera& camera = *IRenderServices::current()->getCurrentCamera();
    const glm::mat4 toEye = camera.getView() * getNode()->getWorldTransform();
    return culler.visible(camera.getProjection() * toEye, glm::vec3(glm::inverse(toEye)[3]), from, to);
}

void TerrainModel::draw(const Model& model, const std::vector<const RangeCuller::Run*>& runs) const
{
    std::vector<GLsizei> counts;
    std::vector<unsigned> firsts;
    for (const RangeCuller::Run* run : runs) {
        counts.push_back(static_cast<GLsizei>(run->range.count));
        firsts.push_back(run->range.first);
    }
    drawVertexArrayRanges(model.vao, model.drawMode, geometry.indices, counts, firsts);
}
