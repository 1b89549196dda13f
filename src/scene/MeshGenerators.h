#pragma once

#include <glm/glm.hpp>

class Mesh;

/// Append an axis-aligned box between two corners: 24 vertices with texture coordinates for a sky picture of 4 x 2
/// cells, 36 indices. The mesh is expected to be empty.
void createBox(Mesh& mesh, const glm::vec3& min, const glm::vec3& max);

/// Append a closed cylinder about the y axis, centred on the origin: 2 x segments + 2 vertices, 12 x segments indices,
/// no texture coordinates. segments is at least 1; radius and height in world units. The mesh is expected to be empty.
void createCylinder(Mesh& mesh, float radius, float height, int segments);
