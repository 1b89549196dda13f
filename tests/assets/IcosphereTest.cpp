#include "assets/Icosphere.h"

#include "scene/Mesh.h"
#include "testing/Near.h"

#include <gtest/gtest.h>

namespace {

TEST(IcosphereTest, LiesOnTheSphereAndIsClosedWithEveryFaceClockwiseFromOutside)
{
    constexpr float kRadius = 3.0f;
    Mesh mesh;
    createIcosphere(mesh, kRadius);
    ASSERT_EQ(mesh.positions.size(), 72u);
    ASSERT_EQ(mesh.normals.size(), 72u);
    ASSERT_EQ(mesh.indices.size(), 3u * 80u);

    for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
        EXPECT_NEAR(glm::length(mesh.positions[i]), kRadius, 1e-4f) << i;
        EXPECT_TRUE(isNear(mesh.normals[i], mesh.positions[i] / kRadius)) << i;
    }
    float volume = 0; // of the tetrahedra between the centre and each face: a hole or an overlap would show
    for (std::size_t i = 0; i < mesh.indices.size(); i += 3) {
        const glm::vec3 &a = mesh.positions[mesh.indices[i]], &b = mesh.positions[mesh.indices[i + 1]],
                        &c = mesh.positions[mesh.indices[i + 2]];
        const float tetrahedron = glm::dot(a, glm::cross(b, c)) / 6.0f;
        EXPECT_LT(tetrahedron, 0) << "triangle " << i / 3 << " would be culled where it should be seen";
        volume -= tetrahedron;
    }
    EXPECT_NEAR(volume, 3.6587f * kRadius * kRadius * kRadius, 0.05f) << "an icosahedron split once";
}

} // namespace
