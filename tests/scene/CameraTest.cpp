#include "scene/Camera.h"
#include "scene/SceneGraph.h"
#include "scene/Transforms.h"
#include "testing/Near.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

struct Sight {
    const char* what;
    float aspect;
    glm::vec3 point; ///< seen from a camera at (0, 0, 10) that looks along -z; likewise when mirrored in x and y
    bool visible;
};

// At distance 100 the sides lie 100 x 0.4872 / 0.8733 = 55.8 from the axis, the margin of 5 adds 5 / 0.8733 = 5.7; top
// and bottom lie 100 x 0.3929 / 0.9196 = 42.7 off, the margin adds 5.4. The tall view's lie 95.7 off and 6.9.
TEST(CameraTest, SightReachesFiveUnitsBeyondItsPlanes)
{
    constexpr float kWide = 1.3333334f, kTall = 0.6666667f; // the overview cameras' aspect ratio, the participants'
    const Sight rows[] = {
        {"ahead", kWide, {0, 0, -90}, true},
        {"four units behind", kWide, {0, 0, 14}, true},
        {"six units behind", kWide, {0, 0, 16}, false},
        {"just inside a side", kWide, {61, 0, -90}, true},
        {"outside of it", kWide, {62, 0, -90}, false},
        {"just inside top or bottom", kWide, {0, 48, -90}, true},
        {"outside of it", kWide, {0, 49, -90}, false},
        {"just inside those of a tall view", kTall, {0, 102, -90}, true},
        {"outside of them", kTall, {0, 103, -90}, false},
        {"at the far plane", kWide, {0, 0, -9994}, true},
        {"beyond it", kWide, {0, 0, -9996}, false},
        {"nowhere", kWide, glm::vec3(std::numeric_limits<float>::quiet_NaN()), true},
    };
    for (const Sight& row : rows) {
        SceneGraph scene;
        Camera camera(45, row.aspect, 0.1f, 10000, {0, -2, -5});
        EXPECT_TRUE(isNear(camera.getView(), translation({0, -2, -5}))) << "the view until the first update";
        Node& node = *scene.getRoot()->createChild("eye");
        node.attach(&camera);
        node.setTransform(translation({0, 0, 10}));
        scene.update();
        for (const float side : {1.0f, -1.0f})
            EXPECT_EQ(camera.isVisible(row.point * glm::vec3(side, side, 1)), row.visible) << row.what << ", " << side;

        node.transform(glm::scale(glm::mat4(1), {2, 1, 1}), true);
        scene.update();
        const glm::vec3 normal = camera.getNormalMatrix() * glm::vec3(1, 1, 0);
        const glm::vec3 slope = glm::mat3(camera.getView()) * glm::vec3(1, -1, 0);
        EXPECT_NEAR(glm::dot(normal, slope), 0, 1e-5f) << "what was a normal stays one in a stretched view";
    }
}

TEST(CameraTest, FittedToAViewShowsItUndistortedAndSeesThatMuch)
{
    Camera camera(45, 0.6666667f, 0.1f, 10000, {0, 0, 0});
    camera.fit(2);
    const glm::vec4 corner = camera.getProjection() * glm::vec4(82.84f, 41.42f, -100, 1);
    EXPECT_TRUE(isNear(glm::vec2(corner) / corner.w, glm::vec2(1, 1)));
    for (const float side : {1.0f, -1.0f}) { // the margin adds 6.5 to the sides, 5.4 to top and bottom
        EXPECT_TRUE(camera.isVisible(side * glm::vec3(89, 46, -side * 100)));
        EXPECT_FALSE(camera.isVisible(side * glm::vec3(90, 0, -side * 100)));
        EXPECT_FALSE(camera.isVisible(side * glm::vec3(0, 47, -side * 100)));
    }
}

} // namespace
