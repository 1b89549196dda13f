#include "scene/MeshGenerators.h"

#include "scene/Mesh.h"
#include "support/Near.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace {

using Indices = std::vector<unsigned short>;

glm::vec3 faceNormal(const Mesh& mesh, std::size_t triangle)
{
    const auto corner = [&](std::size_t i) { return mesh.positions.at(mesh.indices.at(3 * triangle + i)); };
    return glm::normalize(glm::cross(corner(1) - corner(0), corner(2) - corner(0)));
}

Indices triangle(const Mesh& mesh, std::size_t i)
{
    return {mesh.indices.at(3 * i), mesh.indices.at(3 * i + 1), mesh.indices.at(3 * i + 2)};
}

/// Seen from outside, every face is wound the same way, so each edge between two faces is walked once in either direction.
/// Vertices at the same place count as one.
void expectClosedSurface(const Mesh& mesh)
{
    const auto place = [&](std::size_t i) {
        const glm::vec3& p = mesh.positions.at(mesh.indices.at(i));
        return std::tuple(p.x, p.y, p.z);
    };
    std::map<std::pair<std::tuple<float, float, float>, std::tuple<float, float, float>>, int> edges;
    for (std::size_t i = 0; i < mesh.indices.size(); ++i) ++edges[{place(i), place(i % 3 == 2 ? i - 2 : i + 1)}];
    for (const auto& [edge, times] : edges) {
        EXPECT_EQ(times, 1);
        EXPECT_TRUE(edges.contains({edge.second, edge.first}));
    }
}

TEST(MeshGeneratorsTest, BoxFacesLieWhereTheSkyTextureHasTheirCells)
{
    Mesh mesh;
    createBox(mesh, {-1, -2, -3}, {4, 5, 6});
    ASSERT_EQ(mesh.positions.size(), 24u);
    ASSERT_EQ(mesh.texcoords.size(), 24u);

    struct Face {
        glm::vec3 corners[4];
        glm::vec2 texcoords[4];
    };
    const Face faces[] = {
        {{{4, 5, 6}, {-1, 5, 6}, {-1, -2, 6}, {4, -2, 6}}, {{0.5f, 0.5f}, {0.25f, 0.5f}, {0.25f, 0}, {0.5f, 0}}},
        {{{4, 5, 6}, {4, -2, 6}, {4, -2, -3}, {4, 5, -3}}, {{0.5f, 0.5f}, {0.5f, 0}, {0.75f, 0}, {0.75f, 0.5f}}},
        {{{4, 5, 6}, {4, 5, -3}, {-1, 5, -3}, {-1, 5, 6}}, {{0.5f, 0.5f}, {0.5f, 1}, {0.25f, 1}, {0.25f, 0.5f}}},
        {{{-1, 5, 6}, {-1, 5, -3}, {-1, -2, -3}, {-1, -2, 6}}, {{0.25f, 0.5f}, {0, 0.5f}, {0, 0}, {0.25f, 0}}},
        {{{-1, -2, -3}, {4, -2, -3}, {4, -2, 6}, {-1, -2, 6}}, {{0, 0}, {0, 0}, {0, 0}, {0, 0}}},
        {{{4, -2, -3}, {-1, -2, -3}, {-1, 5, -3}, {4, 5, -3}}, {{0.75f, 0}, {1, 0}, {1, 0.5f}, {0.75f, 0.5f}}},
    };
    for (std::size_t i = 0; i < 24; ++i) {
        EXPECT_EQ(mesh.positions[i], faces[i / 4].corners[i % 4]) << "vertex " << i;
        EXPECT_EQ(mesh.texcoords[i], faces[i / 4].texcoords[i % 4]) << "vertex " << i;
    }
}

TEST(MeshGeneratorsTest, BoxIndices)
{
    Mesh mesh;
    createBox(mesh, glm::vec3(-500), glm::vec3(500));
    ASSERT_EQ(mesh.indices.size(), 36u);
    for (std::size_t face : {0u, 1u, 2u, 3u, 5u}) {
        const auto b = static_cast<unsigned short>(4 * face);
        const auto after = [b](int n) { return static_cast<unsigned short>(b + n); };
        EXPECT_EQ(triangle(mesh, 2 * face), (Indices{b, after(2), after(1)}));
        EXPECT_EQ(triangle(mesh, 2 * face + 1), (Indices{after(2), b, after(3)}));
    }
    EXPECT_EQ(triangle(mesh, 8), (Indices{16, 17, 18})) << "the bottom face's order is its own";
    EXPECT_EQ(triangle(mesh, 9), (Indices{18, 16, 19}));
}

TEST(MeshGeneratorsTest, CylinderIsClosedWithItsCentresFirst)
{
    Mesh mesh;
    createCylinder(mesh, 0.45f, 0.35f, 8);
    ASSERT_EQ(mesh.positions.size(), 18u);
    ASSERT_EQ(mesh.indices.size(), 96u);
    EXPECT_TRUE(mesh.texcoords.empty());
    EXPECT_TRUE(isNear(mesh.positions[0], {0, 0.175f, 0}));
    EXPECT_TRUE(isNear(mesh.positions[9], {0, -0.175f, 0}));
    for (std::size_t i = 0; i < 8; ++i) {
        const double angle = static_cast<double>(i) * 6.283 / 8;
        const glm::vec3 top(0.45 * std::cos(angle), 0.175, 0.45 * std::sin(angle));
        EXPECT_TRUE(isNear(mesh.positions[1 + i], top, 1e-6f)) << i;
        EXPECT_TRUE(isNear(mesh.positions[10 + i], {top.x, -top.y, top.z}, 1e-6f)) << i;
    }
    expectClosedSurface(mesh);
}

TEST(MeshGeneratorsTest, CylinderFacesInOrderOfCapsAndSides)
{
    Mesh mesh;
    createCylinder(mesh, 1, 2, 3);
    const std::vector<Indices> expected = {
        {0, 1, 2}, {0, 2, 3}, {0, 3, 1}, {4, 6, 5}, {4, 7, 6}, {4, 5, 7}, {1, 5, 2}, {5, 6, 2}, {2, 6, 3}, {6, 7, 3}, {3, 7, 1}, {7, 5, 1}};
    ASSERT_EQ(mesh.indices.size(), 3 * expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(triangle(mesh, i), expected[i]) << "triangle " << i;
    EXPECT_TRUE(isNear(faceNormal(mesh, 0), {0, -1, 0})) << "clockwise as seen from outside: front faces are culled";
}

} // namespace
