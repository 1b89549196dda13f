#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"
#include "testing/Near.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>

namespace {

TEST(MeshTest, NormalsAreTheUnweightedSumOfTheFacesOnTheirBackSide)
{
    // A small floor triangle, counter-clockwise from above, and a wall ten times as large that shares its edge along x.
    Mesh mesh;
    mesh.positions = {{0, 0, 0}, {1, 0, 0}, {0, 0, -1}, {0, 10, 0}};
    mesh.indices = {0, 1, 2, 0, 1, 3};
    mesh.normals = {{9, 9, 9}};
    mesh.calculateNormals();

    const float half = std::sqrt(0.5f);
    ASSERT_EQ(mesh.normals.size(), 4u) << "old normals go";
    EXPECT_TRUE(isNear(mesh.normals[2], {0, -1, 0}));
    EXPECT_TRUE(isNear(mesh.normals[3], {0, 0, -1}));
    for (int shared : {0, 1}) EXPECT_TRUE(isNear(mesh.normals.at(static_cast<std::size_t>(shared)), {0, -half, -half}));
}

/// Every face must be clockwise as seen from outside, since front faces are culled, and each edge between two faces
/// walked once in either direction: then the surface has no hole. Vertices at the same place count as one. The mesh is
/// convex around the origin.
void expectClosedAndClockwise(const Mesh& mesh)
{
    using Place = std::array<float, 3>;
    const auto at = [&](std::size_t i) { return mesh.positions.at(mesh.indices.at(i)); };
    const auto place = [&](std::size_t i) { return Place{at(i).x, at(i).y, at(i).z}; };
    std::map<std::pair<Place, Place>, int> edges;
    for (std::size_t i = 0; i < mesh.indices.size(); ++i) ++edges[{place(i), place(i % 3 == 2 ? i - 2 : i + 1)}];
    for (const auto& [edge, times] : edges) {
        EXPECT_EQ(times, 1);
        EXPECT_TRUE(edges.contains({edge.second, edge.first}));
    }
    for (std::size_t i = 0; i < mesh.indices.size(); i += 3)
        EXPECT_LT(glm::dot(glm::cross(at(i + 1) - at(i), at(i + 2) - at(i)), at(i)), 0) << "triangle " << i / 3;
}

TEST(MeshTest, CylinderIsClosedAndClockwiseWithItsCentresFirst)
{
    Mesh mesh;
    createCylinder(mesh, 0.45f, 0.35f, 8);
    ASSERT_EQ(mesh.positions.size(), 18u);
    ASSERT_EQ(mesh.indices.size(), 96u);
    for (std::size_t i = 0; i < 18; ++i) {
        EXPECT_FLOAT_EQ(mesh.positions[i].y, i < 9 ? 0.175f : -0.175f) << i;
        EXPECT_NEAR(glm::length(glm::vec2(mesh.positions[i].x, mesh.positions[i].z)), i % 9 ? 0.45f : 0, 1e-6f) << i;
    }
    expectClosedAndClockwise(mesh);
}

} // namespace
