#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"
#include "scene/RangeCuller.h"
#include "testing/Near.h"

#include <glm/gtc/matrix_transform.hpp>

#include <cmath>
#include <set>

namespace {

TEST(MeshTest, NormalsAreTheUnweightedSumOfTheFacesOnTheirBackSide)
{
    // A small floor triangle, counter-clockwise from above, and a wall ten times as large that shares its edge along x.
    Mesh mesh;
    mesh.positions = {{0, 0, 0}, {1, 0, 0}, {0, 0, -1}, {0, 10, 0}};
    mesh.indices = {0, 1, 2, 0, 1, 3};
    mesh.normals = {{9, 9, 9}}; // old ones go
    mesh.calculateNormals();
    const float half = std::sqrt(0.5f);
    const glm::vec3 expected[] = {{0, -half, -half}, {0, -half, -half}, {0, -1, 0}, {0, 0, -1}};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_TRUE(isNear(mesh.normals.at(i), expected[i])) << i;
}

/// Every face must be clockwise as seen from outside, since front faces are culled, and each edge between two faces
/// walked once in either direction: then the surface has no hole.
TEST(MeshTest, CylinderIsClosedAndClockwiseWithItsCentresFirst)
{
    Mesh mesh;
    createCylinder(mesh, 0.45f, 0.35f, 8);
    ASSERT_EQ(mesh.positions.size(), 18u);
    for (std::size_t i = 0; i < 18; ++i) {
        const glm::vec3& position = mesh.positions[i];
        EXPECT_FLOAT_EQ(position.y, i < 9 ? 0.175f : -0.175f) << i;
        EXPECT_NEAR(glm::length(glm::vec2(position.x, position.z)), i % 9 ? 0.45f : 0, 1e-6f) << i;
    }
    std::set<std::pair<int, int>> edges;
    for (std::size_t i = 0; i < mesh.indices.size(); i += 3) {
        const int a = mesh.indices[i], b = mesh.indices[i + 1], c = mesh.indices[i + 2];
        for (const auto& edge : {std::pair{a, b}, {b, c}, {c, a}}) EXPECT_TRUE(edges.insert(edge).second) << i / 3;
        const auto at = [&mesh](int vertex) { return mesh.positions.at(static_cast<std::size_t>(vertex)); };
        EXPECT_LT(glm::dot(glm::cross(at(b) - at(a), at(c) - at(a)), at(a)), 0) << "triangle " << i / 3;
    }
    for (const auto& [from, to] : edges) EXPECT_TRUE(edges.contains({to, from}));
}

/// The mesh is a hundred and one triangles in a row along x, a unit each, in runs of two; the last run has one. The eye
/// is five units above the middle, its view 45 degrees wide and high.
TEST(MeshTest, RangesHoldWhatAViewTouchesBetweenTwoDistances)
{
    Mesh row;
    for (int i = 0; i < 101; ++i) {
        for (const glm::ivec3& corner : {glm::ivec3(i, 0, 0), {i + 1, 0, 0}, {i, 0, 1}}) {
            row.indices.push_back(static_cast<unsigned short>(row.positions.size()));
            row.positions.emplace_back(corner);
        }
    }
    const RangeCuller culler(row, 6);
    struct Row {
        glm::vec3 direction;
        float from, to;
        std::vector<IndexRange> ranges; ///< in triangles
    };
    const Row rows[] = {
        {{1, 0, 0}, 0, 1000, {{62, 39}}}, // the ground 12 units off is at the foot of the view
        {{1, 0, 0}, 0, 20, {{62, 8}}},
        {{1, 0, 0}, 20, 1000, {{70, 31}}},
        {{-1, 0, 0}, 0, 1000, {{0, 40}}},
        {{0, -1, 0}, 5.01f, 1000, {{48, 2}, {52, 2}}},
        {{0, 1, 0}, 0, 1000, {}},
    };
    const glm::vec3 eye(50.5f, 5, 0.5f);
    for (const auto& [direction, from, to, expected] : rows) {
        const glm::mat4 toEye = glm::lookAt(eye, eye + direction, {0, 0, 1});
        const glm::mat4 toClip = glm::perspective(glm::radians(45.0f), 1.0f, 0.1f, 1000.0f) * toEye;
        std::vector<IndexRange> ranges = culler.visible(toClip, eye, from, to);
        for (IndexRange& range : ranges) range = {range.first / 3, range.count / 3};
        EXPECT_EQ(ranges, expected) << glm::to_string(direction) << " from " << from;
    }
}

} // namespace
