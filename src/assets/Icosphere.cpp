#include "assets/Icosphere.h"

#include "scene/Mesh.h"

#include <array>
#include <cstddef>

namespace {

// The corners of an icosahedron on the unit sphere.
constexpr float kA = 0.5257311121191336f;
constexpr float kB = 0.8506508083520399f;

constexpr glm::vec3 kCorners[12] = {
    {-kA, 0, kB},
    {kA, 0, kB},
    {-kA, 0, -kB},
    {kA, 0, -kB},
    {0, kB, kA},
    {0, kB, -kA},
    {0, -kB, kA},
    {0, -kB, -kA},
    {kB, kA, 0},
    {-kB, kA, 0},
    {kB, -kA, 0},
    {-kB, -kA, 0},
};

using Triangle = std::array<unsigned short, 3>;

constexpr Triangle kFaces[20] = {
    {0, 4, 1},
    {0, 9, 4},
    {9, 5, 4},
    {4, 5, 8},
    {4, 8, 1},
    {8, 10, 1},
    {8, 3, 10},
    {5, 3, 8},
    {5, 2, 3},
    {2, 7, 3},
    {7, 10, 3},
    {7, 6, 10},
    {7, 11, 6},
    {11, 0, 6},
    {0, 1, 6},
    {6, 1, 10},
    {9, 0, 11},
    {9, 11, 2},
    {9, 2, 5},
    {7, 2, 11},
};

unsigned short appendMidpoint(std::vector<glm::vec3>& positions, unsigned short from, unsigned short to, float radius)
{
    const glm::vec3 p = positions[from], q = positions[to];
    positions.push_back(glm::normalize(p + (q - p) * 0.5f) * radius);
    return static_cast<unsigned short>(positions.size() - 1);
}

/// Split every triangle once: its own entry becomes the part at its first corner, the other three parts are appended.
void subdivide(std::vector<glm::vec3>& positions, std::vector<Triangle>& triangles, float radius)
{
    const std::size_t count = triangles.size();
    for (std::size_t i = 0; i < count; ++i) {
        const auto [a, b, c] = triangles[i];
        const unsigned short ab = appendMidpoint(positions, a, b, radius);
        const unsigned short bc = appendMidpoint(positions, b, c, radius);
        const unsigned short ca = appendMidpoint(positions, c, a, radius);
        triangles[i] = {a, ab, ca};
        triangles.push_back({ab, b, bc});
        triangles.push_back({bc, c, ca});
        triangles.push_back({ab, bc, ca});
    }
}

} // namespace

void createIcosphere(Mesh& mesh, float radius)
{
    for (const glm::vec3& corner : kCorners) mesh.positions.push_back(corner * radius);
    std::vector<Triangle> triangles(std::begin(kFaces), std::end(kFaces));
    subdivide(mesh.positions, triangles, radius);

    for (const glm::vec3& position : mesh.positions) mesh.normals.push_back(glm::normalize(position));
    for (const Triangle& triangle : triangles)
        mesh.indices.insert(mesh.indices.end(), triangle.begin(), triangle.end());
}
