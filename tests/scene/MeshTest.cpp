#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"
#include "scene/RangeCuller.h"

#include <glm/gtc/matrix_transform.hpp>
#include <glm/gtx/string_cast.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace {

/// Every face must be clockwise as seen from outside, since front faces are culled, and each edge walked once in either
/// direction: then there is no hole.
TEST(MeshTest, CylinderIsClosedAndClockwise)
{
    constexpr float kRadius = 0.45f, kHeight = 0.35f;
    Mesh mesh;
    createCylinder(mesh, kRadius, kHeight, 8);
    ASSERT_EQ(mesh.indices.size(), 96u);
    float volume = 0; // of the tetrahedra between the middle and each face
    std::set<std::pair<int, int>> edges;
    for (std::size_t i = 0; i < mesh.indices.size(); i += 3) {
        const auto corner = [&](std::size_t k) { return mesh.positions.at(mesh.indices[i + k]); };
        for (std::size_t k = 0; k < 3; ++k) edges.insert({mesh.indices[i + k], mesh.indices[i + (k + 1) % 3]});
        const float tetrahedron = glm::dot(glm::cross(corner(0), corner(1)), corner(2)) / 6;
        EXPECT_LT(tetrahedron, 0) << "triangle " << i / 3;
        volume -= tetrahedron;
    }
    EXPECT_NEAR(volume, 4 * kRadius * kRadius * std::sqrt(0.5f) * kHeight, 1e-5f);
    EXPECT_EQ(edges.size(), 96u);
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
