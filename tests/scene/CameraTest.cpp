#include "scene/Camera.h"
#include "scene/SceneGraph.h"
#include "scene/Transforms.h"

#include <glm/gtx/string_cast.hpp>
#include <gtest/gtest.h>

#include <limits>

namespace {

struct Edge {
    float aspect;
    glm::vec3 inside, outside; ///< world; so are these mirrored in x and y
};

// The camera at (0, 0, 10) looks along -z. At distance 100 the sides lie 100 x 0.4872 / 0.8733 = 55.8 from the axis, the
// margin of 5 adds 5 / 0.8733 = 5.7; top and bottom lie 100 x 0.3929 / 0.9196 = 42.7 off, the margin adds 5.4. A tall
// view's lie 95.7 off and 6.9.
TEST(CameraTest, SightReachesFiveUnitsBeyondItsPlanes)
{
    constexpr float kWide = 1.3333334f, kTall = 0.6666667f; // the overview cameras' aspect ratio, the participants'
    const Edge edges[] = {
        {kWide, {0, 0, 14}, {0, 0, 16}},
        {kWide, {61, 0, -90}, {62, 0, -90}},
        {kWide, {0, 48, -90}, {0, 49, -90}},
        {kTall, {0, 102, -90}, {0, 103, -90}},
        {kWide, {0, 0, -9994}, {0, 0, -9996}},
    };
    for (const Edge& edge : edges) {
        SceneGraph scene;
        Node& node = *scene.getRoot()->createChild("eye");
        Camera camera(45, edge.aspect, 0.1f, 10000, {0, -2, -5});
        node.attach(&camera);
        node.setTransform(translation({0, 0, 10}));
        scene.update();
        for (const glm::vec3& mirror : {glm::vec3(1), glm::vec3(-1, -1, 1)}) {
            EXPECT_TRUE(camera.isVisible(edge.inside * mirror)) << glm::to_string(edge.inside * mirror);
            EXPECT_FALSE(camera.isVisible(edge.outside * mirror)) << glm::to_string(edge.outside * mirror);
        }
        EXPECT_TRUE(camera.isVisible(glm::vec3(std::numeric_limits<float>::quiet_NaN())));

        node.transform(glm::scale(glm::mat4(1), {2, 1, 1}), true);
        scene.update();
        EXPECT_EQ(camera.getNormalMatrix()[0], glm::vec3(2, 0, 0)) << "a normal stays one in a stretched view";
    }
}

} // namespace
