#include "assets/ModelImport.h"
#include "scene/Mesh.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

namespace {

Mesh import(const std::string& file)
{
    const auto mesh = importMesh(DATA_FOLDER "Models/" + file);
    EXPECT_TRUE(mesh) << file;
    return mesh ? *mesh : Mesh();
}

/// Positions in the car's frame, for a rotation of -90 degrees about y and a scale of 0.015.
std::vector<glm::vec3> duckInCar()
{
    std::vector<glm::vec3> result;
    for (const glm::vec3& p : import("duck.dae").positions) result.push_back(0.015f * glm::vec3(-p.z, p.y, p.x));
    return result;
}

/// The same for the transform that hangs a hat on the chassis.
std::vector<glm::vec3> hatInCar()
{
    std::vector<glm::vec3> result;
    for (const glm::vec3& p : import("partyhat.dae").positions)
        result.push_back(0.5f * glm::vec3(p.x - 0.1f, p.z + 7.3f, 1.0f - p.y));
    return result;
}

struct Bounds {
    glm::vec3 low{std::numeric_limits<float>::max()}, high{std::numeric_limits<float>::lowest()};
    explicit Bounds(const std::vector<glm::vec3>& points)
    {
        for (const glm::vec3& p : points) {
            low = glm::min(low, p);
            high = glm::max(high, p);
        }
    }
};

TEST(Models, KeepToTheirBudgetAndShowTheirOutside)
{
    for (const auto& [file, budget] :
        {std::pair{"duck.dae", 1500u}, std::pair{"partyhat.dae", 400u}, std::pair{"camera.dae", 300u}}) {
        SCOPED_TRACE(file);
        const Mesh mesh = import(file);
        EXPECT_GT(mesh.indices.size(), 3 * 50u);
        EXPECT_LE(mesh.indices.size(), 3 * budget);

        float volume = 0.0f, outward = 0.0f, area = 0.0f;
        for (std::size_t i = 0; i < mesh.indices.size(); i += 3) {
            const unsigned short a = mesh.indices[i], b = mesh.indices[i + 1], c = mesh.indices[i + 2];
            const glm::vec3& p = mesh.positions[a];
            const glm::vec3 n = glm::cross(mesh.positions[c] - p, mesh.positions[b] - p);
            ASSERT_GT(glm::length(n), 0.0f) << "a triangle without area has no normal";
            volume += glm::dot(p, n);
            area += glm::length(n);
            if (glm::dot(n, mesh.normals[a] + mesh.normals[b] + mesh.normals[c]) > 0.0f) outward += glm::length(n);
        }
        EXPECT_GT(volume, 0.0f) << "faces must wind clockwise, seen from outside, once z is mirrored";
        EXPECT_GT(outward, 0.95f * area) << "normals must point out of the faces, but for a few marks of ink";
    }
}

TEST(DuckModel, FitsTheCarAndLooksAhead)
{
    const std::vector<glm::vec3> duck = duckInCar();
    const Bounds bounds(duck);
    EXPECT_GT(bounds.low.y, -1.0f) << "it must not touch the ground between the wheels";
    EXPECT_LT(bounds.high.z, 2.2f);
    EXPECT_GT(bounds.low.z, -2.2f);
    EXPECT_NEAR(bounds.high.x, -bounds.low.x, 0.01f) << "both sides alike";

    std::vector<glm::vec3> head;
    std::copy_if(duck.begin(), duck.end(), std::back_inserter(head), [](const glm::vec3& p) { return p.y > 1.0f; });
    ASSERT_FALSE(head.empty());
    EXPECT_GT(Bounds(head).high.z, 1.0f) << "the bill is ahead";
    EXPECT_GT(Bounds(head).low.z, -0.5f) << "nothing behind the head reaches its height";
}

TEST(HatModel, SitsOnTheDucksHead)
{
    const std::vector<glm::vec3> duck = duckInCar();
    const Bounds hat(hatInCar());
    const glm::vec3 crown =
        *std::max_element(duck.begin(), duck.end(), [](const glm::vec3& a, const glm::vec3& b) { return a.y < b.y; });
    constexpr float kBob = 0.5f; // units up and down
    EXPECT_LT(hat.low.y - kBob, crown.y) << "at its lowest it touches the head";
    EXPECT_GT(hat.low.y + kBob, crown.y + 0.2f) << "at its highest it is off";
    EXPECT_GT(hat.low.y - kBob, crown.y - 0.45f) << "and never covers the eyes";

    const glm::vec3 middle = 0.5f * (hat.low + hat.high);
    EXPECT_NEAR(middle.x, crown.x, 0.05f);
    EXPECT_NEAR(middle.z, crown.z, 0.05f);
    EXPECT_GT(hat.high.y - hat.low.y, hat.high.x - hat.low.x) << "the cone stands upright";
}

} // namespace
