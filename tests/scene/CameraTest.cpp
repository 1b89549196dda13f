#include "scene/Camera.h"
#include "scene/SceneGraph.h"
#include "testing/Near.h"

#include <gtest/gtest.h>

#include <glm/gtc/matrix_transform.hpp>

#include <limits>

namespace {

constexpr float kWide = 1.3333334f; // the overview cameras' aspect ratio
constexpr float kTall = 0.6666667f; // the participants'

class CameraTest : public testing::Test {
protected:
    void place(const glm::mat4& transform)
    {
        node.attach(&camera);
        node.setTransform(transform);
        scene.update();
    }

    Camera camera{45, kWide, 0.1f, 10000, {0, -2, -5}};
    SceneGraph scene;
    Node& node = *scene.getRoot()->createChild("CameraNode");
};

TEST_F(CameraTest, ViewIsTheInverseOfItsNodesPoseAndEveryProjectionTheSame)
{
    EXPECT_TRUE(isNear(camera.getView(), glm::translate(glm::mat4(1), {0, -2, -5})))
        << "the view until the first update";
    place(glm::translate(glm::mat4(1), {0, 0, 10}));
    EXPECT_TRUE(isNear(camera.getView(), glm::translate(glm::mat4(1), {0, 0, -10})));
    EXPECT_TRUE(isNear(Camera(90, kTall, 1, 50, {}).getProjection(),
        glm::perspective(glm::radians(45.0f), kWide, 0.1f, 1000.0f)));
}

TEST_F(CameraTest, NormalMatrixUndoesAStretch)
{
    place(glm::scale(glm::mat4(1), {2, 1, 1}));
    const glm::vec3 slope = camera.getNormalMatrix() * glm::vec3(1, 1, 0);
    const glm::vec3 along = glm::mat3(camera.getView()) * glm::vec3(1, -1, 0);
    EXPECT_NEAR(glm::dot(slope, along), 0, 1e-5f) << "what was a normal stays one";
}

struct Sight {
    const char* what;
    glm::vec3 point; ///< seen from a camera at (0, 0, 10) that looks along -z
    bool visible;
};

// At distance 100 the sides lie 100 x 0.4872 / 0.8733 = 55.8 from the axis, the margin of 5 adds 5 / 0.8733 = 5.7;
// top and bottom lie 100 x 0.3929 / 0.9196 = 42.7 off, the margin adds 5.4.
TEST_F(CameraTest, SightReachesFiveUnitsBeyondItsPlanes)
{
    const Sight rows[] = {{"ahead", {0, 0, -90}, true}, {"four units behind", {0, 0, 14}, true},
        {"six units behind", {0, 0, 16}, false}, {"just inside the right", {61, 0, -90}, true},
        {"outside the right", {62, 0, -90}, false}, {"just inside the left", {-61, 0, -90}, true},
        {"outside the left", {-62, 0, -90}, false}, {"just inside the top", {0, 48, -90}, true},
        {"above", {0, 49, -90}, false}, {"just inside the bottom", {0, -48, -90}, true},
        {"below", {0, -49, -90}, false}, {"at the far plane", {0, 0, -9994}, true}, {"beyond it", {0, 0, -9996}, false},
        {"nowhere", glm::vec3(std::numeric_limits<float>::quiet_NaN()), true}};
    place(glm::translate(glm::mat4(1), {0, 0, 10}));
    for (const Sight& row : rows) EXPECT_EQ(camera.isVisible(row.point), row.visible) << row.what;
    EXPECT_TRUE(isNear(Camera(45, kTall, 0.1f, 10000, {}).getPlane(5), glm::vec4(0, 0.7226f, -0.6913f, 0)))
        << "a tall view sees higher";
}

} // namespace
