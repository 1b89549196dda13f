#include "scene/Mesh.h"
#include "scene/RangeCuller.h"
#include "testing/Near.h"

#include <glm/gtc/matrix_transform.hpp>

#include <algorithm>
#include <cmath>

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

/// Return the ranges in their order in the list, neighbours as one.
std::vector<IndexRange> joined(std::vector<IndexRange> ranges)
{
    std::ranges::sort(ranges, {}, &IndexRange::first);
    std::vector<IndexRange> result;
    for (const IndexRange& range : ranges) {
        if (!result.empty() && result.back().first + result.back().count == range.first)
            result.back().count += range.count;
        else result.push_back(range);
    }
    return result;
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
        std::vector<IndexRange> ranges;
        for (const RangeCuller::Run* run : culler.visible(toClip, eye, from, to))
            ranges.push_back({run->range.first / 3, run->range.count / 3});
        const auto away = [&](const IndexRange& range) { // of the run's nearest point, along the row
            const float first = static_cast<float>(range.first), end = first + static_cast<float>(range.count);
            return std::abs(std::clamp(eye.x, first, end) - eye.x);
        };
        EXPECT_TRUE(std::ranges::is_sorted(ranges, {}, away)) << "not nearest first: " << glm::to_string(direction);
        EXPECT_EQ(joined(ranges), expected) << glm::to_string(direction) << " from " << from;
    }
}

} // namespace
