#include "app/FreeFlight.h"
#include "scene/SceneGraph.h"
#include "testing/Near.h"
#include "testing/ScriptedKeyboard.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Row {
    std::initializer_list<int> keys;
    int mouseX;              // pixels; from row to row the mouse moves by the difference
    glm::vec3 moved;         // in half a second
    float right = 0, up = 0; // degrees from straight ahead, afterwards
};

TEST(FreeFlight, FliesInTheDirectionOfItsViewByKeysAndMouse)
{
    const float sine = std::sin(glm::radians(25.0f)), cosine = std::cos(glm::radians(25.0f));
    const Row rows[] = {
        {{}, 400, {0, 0, 0}},
        {{GLFW_KEY_W}, 400, {0, 0, -0.5f}},
        {{GLFW_KEY_A}, 400, {-0.5f, 0, 0}},
        {{GLFW_KEY_D, GLFW_KEY_S}, 400, {0.5f, 0, 0.5f}},
        {{GLFW_KEY_W, GLFW_KEY_S}, 400, {0, 0, 0}},
        {{GLFW_KEY_W, GLFW_KEY_LEFT_SHIFT}, 400, {0, 0, -5.0f}},
        {{GLFW_KEY_RIGHT, GLFW_KEY_W}, 400, {0.5f * sine, 0, -0.5f * cosine}, 25},
        {{GLFW_KEY_LEFT, GLFW_KEY_LEFT_SHIFT}, 400, {0, 0, 0}},
        {{GLFW_KEY_UP}, 400, {0, 0, 0}, 0, -25},
        {{GLFW_KEY_DOWN, GLFW_KEY_W}, 400, {0, 0, -0.5f}},
        {{GLFW_KEY_LEFT}, 401, {0, 0, 0}, 25}, // a mouse that moves goes before the keys
        {{}, 401, {0, 0, 0}, 25},
    };
    ScriptedKeyboard keys;
    SceneGraph graph;
    Node* node = graph.getRoot()->createChild("flown");
    FreeFlight flight(*node);
    flight.start({400, 300});
    for (const Row& row : rows) {
        SCOPED_TRACE(&row - rows);
        const glm::vec3 before = node->getWorldPosition();
        keys.reset();
        keys.hold(row.keys);
        flight.update({row.mouseX, 300}, 0.5f);
        graph.update();
        EXPECT_TRUE(isNear(node->getWorldPosition() - before, row.moved));
        const float right = glm::radians(row.right), up = glm::radians(row.up);
        const glm::vec3 view = -glm::vec3(node->getWorldTransform()[2]);
        EXPECT_TRUE(isNear(view, glm::vec3(std::sin(right), std::sin(up), -std::cos(right) * std::cos(up))));
    }
}

} // namespace
