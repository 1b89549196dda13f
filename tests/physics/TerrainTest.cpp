#include "scene/SceneGraph.h"
#include "testing/CapturedLog.h"
#include "testing/Near.h"
#include "testing/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

namespace {

TEST(Terrain, TakesEveryEighthPixelOfItsPictureRaisedToPowersOfTwo)
{
    constexpr float kByte = 50.0f / 255.0f; // world units
    constexpr const char* kTooSmall = "ERROR | height picture is smaller than 512 x 512: Textures/map.tga\n";
    const struct {
        int width, height;
        float tolerance;
        const char* complaint;
    } rows[] = {
        {512, 512, 0.001f, ""},
        {300, 300, 1.5f * kByte, ""},
        {400, 512, 1.5f * kByte, ""},
        {512, 256, 0, kTooSmall},
        {256, 512, 0, kTooSmall},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.width);
        WorldFixture world;
        CapturedLog log;
        // The same plane, whatever the picture's size: 200 up along a row, which lies along z, and 50 from row to row.
        const auto plane = [](int x, int w, int y, int h) { return x * 200 / w + y * 50 / h; };
        const std::vector<glm::vec3> points =
            world.ground([&](int x, int y) { return plane(x, row.width, y, row.height); }, row.width, row.height)
                .getVertices();
        EXPECT_EQ(log.text(), row.complaint);
        for (int i = 0; i < 64 * 64; ++i) {
            const bool flat = *row.complaint; // and not above 50, where cars enter
            const float y = flat ? 40 : static_cast<float>(plane(i % 64, 64, i / 64, 64)) * kByte;
            const glm::vec3 expected(i / 64 * 8, y, i % 64 * 8);
            ASSERT_TRUE(isNear(points[static_cast<std::size_t>(i)], expected, row.tolerance + 0.001f));
        }
    }
}

TEST(Terrain, DrawnTrianglesLieOnThePhysicalGround)
{
    // Hills without any symmetry: exchanged axes and the other diagonal give another ground.
    WorldFixture world;
    Terrain& terrain = world.ground([](int x, int y) { return (x * 3 + y * 7 + (x / 8) * (y / 8) * 5) % 200; });
    SceneGraph graph;
    graph.getRoot()->addChild(terrain.getNode());
    graph.update();
    const glm::vec3 corner = terrain.getNode()->getWorldPosition();
    EXPECT_TRUE(isNear(corner, glm::vec3(-256, 0, -256)));
    const std::vector<glm::vec3> vertices = terrain.getVertices();
    const std::vector<unsigned short> indices = terrain.getIndices();
    ASSERT_EQ(indices.size(), 23814u);

    for (std::size_t first = 0; first < indices.size(); first += 21) { // every seventh triangle
        const glm::vec3 a = vertices.at(indices[first]), b = vertices.at(indices[first + 1]),
                        c = vertices.at(indices[first + 2]);
        ASSERT_LT(glm::cross(b - a, c - a).y, 0) << "triangle " << first / 3 << " is not clockwise seen from above";
        const glm::vec3 drawn = corner + (a + b + c) / 3.0f;
        physx::PxRaycastBuffer hit;
        ASSERT_TRUE(world.manager.getScene().raycast({drawn.x, 200, drawn.z}, {0, -1, 0}, 400, hit));
        ASSERT_NEAR(hit.block.position.y, drawn.y, 0.02f) << "at " << glm::to_string(drawn);
    }
}

} // namespace
