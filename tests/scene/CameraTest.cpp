#include "scene/Camera.h"
#include "scene/SceneGraph.h"
#include "support/Near.h"

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

TEST_F(CameraTest, ViewIsTheInverseOfItsNodesPose)
{
    EXPECT_TRUE(isNear(camera.getView(), glm::translate(glm::mat4(1), {0, -2, -5}))) << "the view until the first update";

    place(glm::translate(glm::mat4(1), {0, 0, 10}));
    EXPECT_TRUE(isNear(camera.getView(), glm::translate(glm::mat4(1), {0, 0, -10})));
    EXPECT_TRUE(isNear(camera.getPosition(), {0, 0, 10}));
}

TEST_F(CameraTest, NormalMatrixUndoesAStretch)
{
    place(glm::scale(glm::mat4(1), {2, 1, 1}));
    const glm::vec3 slope = camera.getNormalMatrix() * glm::vec3(1, 1, 0);
    const glm::vec3 along = glm::mat3(camera.getView()) * glm::vec3(1, -1, 0);
    EXPECT_NEAR(glm::dot(slope, along), 0, 1e-5f) << "what was a normal stays one";
}

TEST_F(CameraTest, EveryCameraHasTheSameProjection)
{
    const glm::mat4 expected = glm::perspective(glm::radians(45.0f), kWide, 0.1f, 1000.0f);
    EXPECT_TRUE(isNear(camera.getProjection(), expected));
    EXPECT_TRUE(isNear(Camera(90, kTall, 1, 50, {}).getProjection(), expected));
}

struct Planes {
    float aspect;
    glm::vec4 planes[6];
};

class CameraPlanes : public testing::TestWithParam<Planes> {};

TEST_P(CameraPlanes, FollowTheAspectRatio)
{
    const Camera camera(45, GetParam().aspect, 0.1f, 10000, {});
    for (int i = 0; i < 6; ++i) EXPECT_TRUE(isNear(camera.getPlane(i), GetParam().planes[i])) << "plane " << i;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, CameraPlanes, testing::Values(
    Planes{kWide, {{0, 0, -1, 0.1f}, {0, 0, 1, 10000}, {-0.8733f, 0, -0.4872f, 0}, {0.8733f, 0, -0.4872f, 0}, {0, 0.9196f, -0.3929f, 0}, {0, -0.9196f, -0.3929f, 0}}},
    Planes{kTall, {{0, 0, -1, 0.1f}, {0, 0, 1, 10000}, {-0.8733f, 0, -0.4872f, 0}, {0.8733f, 0, -0.4872f, 0}, {0, -0.7226f, -0.6913f, 0}, {0, 0.7226f, -0.6913f, 0}}}));
// clang-format on

struct Sight {
    const char* what;
    glm::vec3 point; ///< seen from a camera at (0, 0, 10) that looks along -z
    bool visible;
};

class CameraSight : public CameraTest, public testing::WithParamInterface<Sight> {};

TEST_P(CameraSight, ReachesFiveUnitsBeyondThePlanes)
{
    place(glm::translate(glm::mat4(1), {0, 0, 10}));
    EXPECT_EQ(camera.isVisible(GetParam().point), GetParam().visible) << GetParam().what;
}

// At distance 100 the sides lie 100 x 0.4872 / 0.8733 = 55.8 from the axis, the margin of 5 adds 5 / 0.8733 = 5.7;
// top and bottom lie 100 x 0.3929 / 0.9196 = 42.7 off, the margin adds 5.4.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, CameraSight, testing::Values(
    Sight{"ahead", {0, 0, -90}, true},
    Sight{"four units behind", {0, 0, 14}, true}, Sight{"six units behind", {0, 0, 16}, false},
    Sight{"just inside the right", {61, 0, -90}, true}, Sight{"outside the right", {62, 0, -90}, false},
    Sight{"just inside the left", {-61, 0, -90}, true}, Sight{"outside the left", {-62, 0, -90}, false},
    Sight{"just inside the top", {0, 48, -90}, true}, Sight{"above", {0, 49, -90}, false},
    Sight{"just inside the bottom", {0, -48, -90}, true}, Sight{"below", {0, -49, -90}, false},
    Sight{"at the far plane", {0, 0, -9994}, true}, Sight{"beyond it", {0, 0, -9996}, false},
    Sight{"nowhere", glm::vec3(std::numeric_limits<float>::quiet_NaN()), true}));
// clang-format on

} // namespace
