#include "app/FreeFlight.h"
#include "scene/SceneGraph.h"
#include "support/Near.h"
#include "support/ScriptedKeyboard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

namespace {

class FreeFlightTest : public testing::Test {
protected:
    FreeFlightTest() { flight.start({400, 300}); }

    void fly(std::initializer_list<int> down, float seconds, FreeFlight::Mouse mouse = {400, 300})
    {
        keys.hold(down);
        flight.update(mouse, seconds);
        graph.update();
    }

    glm::vec3 position() const { return node->getWorldPosition(); }
    glm::vec3 view() const { return -glm::vec3(node->getWorldTransform()[2]); }

    ScriptedKeyboard keys;
    SceneGraph graph;
    Node* node = graph.getRoot()->createChild("flown");
    FreeFlight flight{*node};
};

TEST_F(FreeFlightTest, KeysMoveTheNodeInItsOwnFrame)
{
    struct Row {
        std::initializer_list<int> keys;
        glm::vec3 moved; // in half a second
    };
    const Row rows[] = {
        {{}, {0, 0, 0}},
        {{GLFW_KEY_W}, {0, 0, -0.5f}},
        {{GLFW_KEY_S}, {0, 0, 0.5f}},
        {{GLFW_KEY_A}, {-0.5f, 0, 0}},
        {{GLFW_KEY_D}, {0.5f, 0, 0}},
        {{GLFW_KEY_W, GLFW_KEY_D}, {0.5f, 0, -0.5f}},
        {{GLFW_KEY_W, GLFW_KEY_S}, {0, 0, 0}},
        {{GLFW_KEY_W, GLFW_KEY_LEFT_SHIFT}, {0, 0, -5.0f}},
        {{GLFW_KEY_LEFT_SHIFT}, {0, 0, 0}},
    };
    for (const Row& row : rows) {
        const glm::vec3 before = position();
        fly(row.keys, 0.5f);
        EXPECT_TRUE(isNear(position() - before, row.moved));
    }

    fly({GLFW_KEY_RIGHT}, 1.8f); // 90 degrees
    const glm::vec3 before = position();
    fly({GLFW_KEY_W}, 1);
    EXPECT_TRUE(isNear(position() - before, glm::vec3(1, 0, 0), 1e-3f)) << "forwards is now +x";
}

TEST_F(FreeFlightTest, ArrowKeysTurnFiftyDegreesASecondWithOrWithoutShift)
{
    const float sine = std::sin(glm::radians(25.0f)), cosine = std::cos(glm::radians(25.0f));
    fly({GLFW_KEY_RIGHT}, 0.5f);
    EXPECT_TRUE(isNear(view(), glm::vec3(sine, 0, -cosine)));
    fly({GLFW_KEY_LEFT, GLFW_KEY_LEFT_SHIFT}, 0.5f);
    EXPECT_TRUE(isNear(view(), glm::vec3(0, 0, -1)));
    fly({GLFW_KEY_UP}, 0.5f);
    EXPECT_TRUE(isNear(view(), glm::vec3(0, -sine, -cosine)));
    fly({GLFW_KEY_DOWN}, 0.5f);
    EXPECT_TRUE(isNear(view(), glm::vec3(0, 0, -1)));
}

TEST_F(FreeFlightTest, AMouseThatMovesGoesBeforeTheKeysAndTurnsOncePerMovement)
{
    const float sine = std::sin(glm::radians(10.0f)), cosine = std::cos(glm::radians(10.0f));
    fly({GLFW_KEY_LEFT}, 0.1f, {402, 300}); // two pixels to the right
    EXPECT_TRUE(isNear(view(), glm::vec3(sine, 0, -cosine)));
    fly({}, 0.1f, {402, 300});
    EXPECT_TRUE(isNear(view(), glm::vec3(sine, 0, -cosine))) << "a mouse at rest turns nothing";
}

} // namespace
