#include "assets/DriverModel.h"

#include "assets/IRenderServices.h"
#include "assets/Library.h"
#include "scene/Node.h"

#include <algorithm>
#include <initializer_list>

namespace {

constexpr std::initializer_list<MeshAttribute> kAttributes{MeshAttribute::Position, MeshAttribute::Normal};

/// Meshes with fewer triangles, and the size up to which they do: of the duck with its car, in pixels across.
constexpr struct {
    const char* mesh;
    float pixels;
} kCoarseMeshes[] = {{"DuckFarthest", 80}, {"DuckFar", 165}};

} // namespace

DriverModel::Coarse::Coarse(Shaderprogram* program, const Mesh& mesh, float mostPixels) : pixels(mostPixels)
{
    shader = program;
    makeGeometry(&mesh, kAttributes);
}

DriverModel::DriverModel(const glm::vec4& color) : CelModel(color)
{
    makeGeometry(Library::getInstance()->getMesh("Duck"), kAttributes);
    for (const auto& [meshName, pixels] : kCoarseMeshes) {
        if (const Mesh* mesh = Library::getInstance()->getMesh(meshName, false))
            coarse.emplace_back(shader, *mesh, pixels);
    }
}

const Model& DriverModel::getShadowShape() const
{
    if (coarse.empty() || !coarse.front().hasGeometry()) return *this;
    return coarse.front();
}

void DriverModel::drawShape()
{
    const glm::mat4 transform = getNode()->getWorldTransform();
    const float across = 2 * boundingRadius * glm::length(glm::vec3(transform[0])); // world units
    const float pixels = across * IRenderServices::current()->getPixelsPerUnit(transform[3]);
    const auto shape = std::ranges::find_if(coarse, [&](const Coarse& candidate) { return pixels < candidate.pixels; });
    if (shape == coarse.end()) return CelModel::drawShape();
    shape->completeVAO();
    shape->draw();
}
