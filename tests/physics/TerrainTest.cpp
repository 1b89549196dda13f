#include "scene/SceneGraph.h"
#include "testing/CapturedLog.h"
#include "testing/Near.h"
#include "testing/WorldFixture.h"

#include <PxPhysicsAPI.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace {

const glm::vec3 kCorner(-256, 0, -256); // of the field, in world space

/// Height of the physical ground at (x, z); nothing where there is none.
std::optional<float> groundHeight(const PhysxManager& world, float x, float z)
{
    physx::PxRaycastBuffer hit;
    const bool found = world.getScene().raycast(physx::PxVec3(x, 200, z), physx::PxVec3(0, -1, 0), 400, hit);
    if (!found) return std::nullopt;
    return hit.block.position.y;
}

/// Hills without any symmetry: exchanged axes, a mirrored picture and the other diagonal all give another ground.
int unevenHeight(int x, int y)
{
    return (x * 3 + y * 7 + (x / 8) * (y / 8) * 5) % 200;
}

glm::vec3 worldVertex(const std::vector<glm::vec3>& vertices, unsigned short index)
{
    return vertices[index] + kCorner;
}

} // namespace

TEST(Terrain, TakesEveryEighthPixelAndStandsAroundTheOrigin)
{
    WorldFixture world;
    Terrain& terrain = world.ground([](int x, int y) { return x == 16 && y == 8 ? 128 : 0; });
    const std::vector<glm::vec3> vertices = terrain.getVertices();
    EXPECT_TRUE(isNear(worldVertex(vertices, 66), glm::vec3(-248, 25.098f, -240), 1e-3f))
        << "a picture's rows lie along z";
    EXPECT_EQ(std::count_if(vertices.begin(), vertices.end(), [](const glm::vec3& v) { return v.y != 0; }), 1);

    SceneGraph graph;
    graph.getRoot()->addChild(terrain.getNode());
    graph.update();
    EXPECT_TRUE(isNear(terrain.getNode()->getWorldPosition(), kCorner));
}

TEST(Terrain, CoversTheFieldAtTheHeightOfItsPictureAndNoMore)
{
    WorldFixture world;
    world.flatGround(204);
    for (const float x : {-256.5f, -255.5f, 247.5f, 248.5f})
        for (const float z : {-256.5f, -255.5f, 247.5f, 248.5f}) {
            const bool inside = std::abs(x + 4) < 252 && std::abs(z + 4) < 252;
            EXPECT_NEAR(groundHeight(world.manager, x, z).value_or(-1), inside ? 40 : -1, 1e-3f) << x << ", " << z;
        }
}

TEST(Terrain, DrawnTrianglesLieOnThePhysicalGround)
{
    WorldFixture world;
    const Terrain& terrain = world.ground(unevenHeight);
    const std::vector<glm::vec3> vertices = terrain.getVertices();
    const std::vector<unsigned short> indices = terrain.getIndices();
    ASSERT_EQ(indices.size(), 23814u);
    ASSERT_LT(*std::max_element(indices.begin(), indices.end()), vertices.size());

    // Shares of a triangle's corners: near each of them and in the middle.
    const glm::vec3 spots[] = {{0.98f, 0.01f, 0.01f}, {0.01f, 0.98f, 0.01f}, {0.01f, 0.01f, 0.98f},
        {0.33f, 0.33f, 0.34f}, {0.48f, 0.04f, 0.48f}};
    for (std::size_t first = 0; first < indices.size(); first += 21) { // every seventh triangle
        const glm::vec3 a = worldVertex(vertices, indices[first]), b = worldVertex(vertices, indices[first + 1]),
                        c = worldVertex(vertices, indices[first + 2]);
        ASSERT_LT(glm::cross(b - a, c - a).y, 0) << "triangle " << first / 3 << " is not clockwise seen from above";
        for (const glm::vec3& share : spots) {
            const glm::vec3 drawn = share.x * a + share.y * b + share.z * c;
            const std::optional<float> ground = groundHeight(world.manager, drawn.x, drawn.z);
            ASSERT_TRUE(ground) << glm::to_string(drawn);
            ASSERT_NEAR(*ground, drawn.y, 0.02f) << "triangle " << first / 3 << " at " << glm::to_string(drawn);
        }
    }
}

TEST(Terrain, APictureThatIsTooSmallIsReportedOnceAndGivesAFlatField)
{
    WorldFixture world;
    const DataScratch folder;
    folder.writeTga("Textures/map.tga", 512, 256, 1, [](int, int, int) { return 9; });
    CapturedLog log;
    const std::vector<glm::vec3> vertices = world.manager.createTerrain()->getVertices();
    EXPECT_EQ(log.text(), "ERROR | height picture is smaller than 512 x 512: Textures/map.tga\n");
    EXPECT_TRUE(std::all_of(vertices.begin(), vertices.end(),
        [&](const glm::vec3& v) { return v.y == vertices[0].y; }));
    EXPECT_NEAR(groundHeight(world.manager, 10, 10).value_or(-1), vertices[0].y, 1e-3f);
    EXPECT_LT(vertices[0].y, 50) << "cars enter at height 50";
}
