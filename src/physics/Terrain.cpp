#include "physics/Terrain.h"

#include "base/Logger.h"
#include "physics/PhysicNode.h"
#include "platform/Image.h"

#include <PxPhysicsAPI.h>

#include <optional>
#include <string>
#include <utility>

using namespace physx;

namespace {

constexpr const char* kHeightImage = "Textures/map.tga";
constexpr int kImageSide = 512;    // pixels that the field is sampled from, and its edge length in world units
constexpr PxI16 kFlatHeight = 204; // height 40: cars enter at 50, and a longer fall turns some of them over

/// Return the height picture, its sides raised to powers of two; nothing, and why in `error`, where it does not serve.
std::optional<Image> readHeightImage(std::string& error)
{
    std::optional<Image> image = readTga(kHeightImage, error);
    if (!image) return image;
    image = resampledToPowersOfTwo(*std::move(image));
    if (image->width >= kImageSide && image->height >= kImageSide) return image;
    error = "height picture is smaller than " + std::to_string(kImageSide) + " x " + std::to_string(kImageSide);
    return std::nullopt;
}

} // namespace

Terrain::Terrain()
    : rowScale(static_cast<float>(kImageSide) / static_cast<float>(size)), columnScale(rowScale),
      samples(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns))
{
    std::string error;
    if (const std::optional<Image> image = readHeightImage(error)) {
        sample(*image);
    } else {
        logLine(0) << error << ": " << kHeightImage << std::endl;
        flatten();
    }
}

void Terrain::sample(const Image& image)
{
    const int pixels = kImageSide / size; // between grid points
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            samples[indexOf(row, column)].height = *image.at(column * pixels, row * pixels);
    }
}

void Terrain::flatten()
{
    for (PxHeightFieldSample& point : samples) point.height = kFlatHeight;
}

PhysicNode* Terrain::createPhysics(PxPhysics& physics, PxCooking& cooking, PxScene& scene, PxMaterial& material,
    PxFilterData simulationFilterData, PxFilterData queryFilterData)
{
    PxHeightFieldDesc description;
    description.nbRows = static_cast<PxU32>(rows);
    description.nbColumns = static_cast<PxU32>(columns);
    description.format = PxHeightFieldFormat::eS16_TM;
    description.samples.stride = sizeof(PxHeightFieldSample);
    description.samples.data = samples.data();
    PxHeightField* heightField = cooking.createHeightField(description, physics.getPhysicsInsertionCallback());
    const PxHeightFieldGeometry geometry(heightField, PxMeshGeometryFlags(), heightScale, rowScale, columnScale);

    const int halfColumns = columns / 2, halfRows = rows / 2; // whole ones
    const PxVec3 corner(-static_cast<float>(halfColumns) * columnScale, 0, -static_cast<float>(halfRows) * rowScale);
    actor = physics.createRigidStatic(PxTransform(corner));
    PxShape* shape = PxRigidActorExt::createExclusiveShape(*actor, geometry, material);
    scene.addActor(*actor);
    shape->setSimulationFilterData(simulationFilterData);
    shape->setQueryFilterData(queryFilterData);
    shape->setFlag(PxShapeFlag::eVISUALIZATION, false);

    node = new PhysicNode("Map");
    node->actor = actor;
    return node;
}

std::vector<glm::vec3> Terrain::getVertices() const
{
    std::vector<glm::vec3> vertices;
    vertices.reserve(samples.size());
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const float height = static_cast<float>(samples[indexOf(row, column)].height) * heightScale;
            vertices.emplace_back(static_cast<float>(row) * columnScale, height, static_cast<float>(column) * rowScale);
        }
    }
    return vertices;
}

std::vector<unsigned short> Terrain::getIndices() const
{
    std::vector<unsigned short> indices;
    for (int row = 0; row + 1 < rows; ++row) {
        for (int column = 0; column + 1 < columns; ++column) {
            const std::size_t b = indexOf(row, column), next = indexOf(row + 1, column);
            // The diagonal is the one along which the physics library splits a cell whose tessellation flag is clear.
            for (const std::size_t corner : {b, next, b + 1, next, next + 1, b + 1})
                indices.push_back(static_cast<unsigned short>(corner));
        }
    }
    return indices;
}

std::size_t Terrain::indexOf(int row, int column) const
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(column);
}

int Terrain::getSize() const
{
    return static_cast<int>(static_cast<float>(size) * columnScale);
}
