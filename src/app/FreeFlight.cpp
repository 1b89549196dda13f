#include "app/FreeFlight.h"

#include "platform/Keyboard.h"
#include "scene/Node.h"
#include "scene/Transforms.h"

#include <GLFW/glfw3.h>

namespace {

constexpr float kTurnSpeed = 50.0f; // degrees a second for an arrow key, or for a pixel of mouse movement in the frame
constexpr float kMoveSpeed = 1.0f;  // world units a second
constexpr float kBoost = 10.0f;     // times kMoveSpeed

float direction(int positiveKey, int negativeKey)
{
    return (isKeyDown(positiveKey) ? 1.0f : 0.0f) - (isKeyDown(negativeKey) ? 1.0f : 0.0f);
}

// The mouse, where it moved, goes before the keys.
float turn(int mouseDelta, int positiveKey, int negativeKey)
{
    const float keys = direction(positiveKey, negativeKey);
    return mouseDelta != 0 ? static_cast<float>(mouseDelta) : keys;
}

} // namespace

void FreeFlight::update(Mouse mouse, float seconds)
{
    const float yaw = -turn(mouse.x - lastMouse.x, GLFW_KEY_RIGHT, GLFW_KEY_LEFT) * seconds * kTurnSpeed;
    const float pitch = -turn(mouse.y - lastMouse.y, GLFW_KEY_UP, GLFW_KEY_DOWN) * seconds * kTurnSpeed;
    const float speed = isKeyDown(GLFW_KEY_LEFT_SHIFT) ? kBoost * kMoveSpeed : kMoveSpeed;
    const glm::vec3 movement(direction(GLFW_KEY_D, GLFW_KEY_A), 0, -direction(GLFW_KEY_W, GLFW_KEY_S));

    node.transform(rotation(yaw, glm::vec3(0, 1, 0)), true);
    node.transform(rotation(pitch, glm::vec3(1, 0, 0)), true);
    node.transform(translation(movement * speed * seconds), true);
    lastMouse = mouse;
}
