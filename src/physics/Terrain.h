#pragma once

#include <PxFiltering.h>
#include <geometry/PxHeightFieldSample.h>
#include <glm/glm.hpp>

#include <cstddef>
#include <vector>

namespace physx {
class PxCooking;
class PxMaterial;
class PxPhysics;
class PxRigidStatic;
class PxScene;
}
class PhysicNode;
struct Image;

/// The playing field: a grid of heights sampled from "Textures/map.tga", as a static height-field actor and as vertices
/// to draw. Made and owned by PhysxManager; construct, then createPhysics() once. Rows run along x, columns along z.
class Terrain {
public:
    /// Raise the picture's sides to powers of two and sample its lower left 512 x 512 pixels. Where it is missing,
    /// cannot be decoded or is still smaller, log that and make a flat field.
    Terrain();

    /// Put the field into the scene with the given records on its shape and return the node "Map" that follows it.
    PhysicNode* createPhysics(physx::PxPhysics& physics, physx::PxCooking& cooking, physx::PxScene& scene,
        physx::PxMaterial& material, physx::PxFilterData simulationFilterData, physx::PxFilterData queryFilterData);

    /// Return the grid points in the node's frame, index row x 64 + column.
    std::vector<glm::vec3> getVertices() const;

    /// Return two triangles a grid cell, clockwise seen from above.
    std::vector<unsigned short> getIndices() const;

    int getSize() const; ///< edge length of the field in world units, for rules that ask how large the arena is
    PhysicNode* getNode() const { return node; }
    physx::PxRigidStatic* getActor() const { return actor; }

private:
    void sample(const Image& image);
    void flatten();
    std::size_t indexOf(int row, int column) const; // of a grid point among the samples

    int size = 64; // grid points a side
    int rows = size;
    int columns = size;
    float heightScale = 50.0f / 255.0f; // world units a height unit
    float rowScale;                     // world units between rows
    float columnScale;
    std::vector<physx::PxHeightFieldSample> samples;
    PhysicNode* node = nullptr;
    physx::PxRigidStatic* actor = nullptr;
};
