#include "scene/Mesh.h"
#include "support/Near.h"

#include <gtest/gtest.h>

#include <cmath>

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

} // namespace
