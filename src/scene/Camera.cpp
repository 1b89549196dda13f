#include "scene/Camera.h"

#include "scene/Node.h"
#include "scene/Transforms.h"

#include <cmath>

namespace {

constexpr float kProjectionFovDegrees = 45.0f;
constexpr float kProjectionAspect = 1.3333334f;
constexpr float kProjectionNear = 0.1f;   // world units
constexpr float kProjectionFar = 1000.0f; // world units
constexpr float kVisibilityMargin = 5.0f; // world units outside a plane that still count as visible

} // namespace

Camera::Camera(float fov, float aspect, float near, float far, const glm::vec3& position)
    : projection(glm::perspective(glm::radians(kProjectionFovDegrees), kProjectionAspect, kProjectionNear,
          kProjectionFar)),
      eyeOffset(glm::lookAt(glm::vec3(0, 0, 0), glm::vec3(0, 0, -1), glm::vec3(0, 1, 0)))
{
    view = eyeOffset * translation(position);

    // Half angles in degrees go to sine and cosine as they are: 22.5 radians makes a wedge of about 29 degrees to
    // either side, a little wider than what the projection shows, and the game's pictures are composed for it.
    const float h = fov / 2;
    const float k = fov / aspect / 2;
    planes = {
        glm::vec4(0, 0, -1, near),
        glm::vec4(0, 0, 1, far),
        glm::vec4(std::cos(h), 0, std::sin(h), 0),
        glm::vec4(-std::cos(h), 0, std::sin(h), 0),
        glm::vec4(0, -std::sin(k), std::cos(k), 0),
        glm::vec4(0, std::sin(k), std::cos(k), 0),
    };
}

void Camera::fit(float aspect)
{
    const float k = glm::radians(kProjectionFovDegrees) / 2;
    const float h = std::atan(aspect * std::tan(k));
    projection = glm::perspective(2 * k, aspect, kProjectionNear, kProjectionFar);
    planes[2] = glm::vec4(std::cos(h), 0, -std::sin(h), 0);
    planes[3] = glm::vec4(-std::cos(h), 0, -std::sin(h), 0);
    planes[4] = glm::vec4(0, std::cos(k), -std::sin(k), 0);
    planes[5] = glm::vec4(0, -std::cos(k), -std::sin(k), 0);
}

void Camera::update()
{
    view = eyeOffset * glm::inverse(getNode()->getWorldTransform());
}

glm::mat3 Camera::getNormalMatrix() const
{
    return glm::inverse(glm::transpose(glm::mat3(view)));
}

glm::vec3 Camera::getPosition() const
{
    return getNode()->getWorldPosition();
}

bool Camera::isVisible(const glm::vec3& point) const
{
    const glm::vec4 inView = view * glm::vec4(point, 1.0f);
    for (const glm::vec4& plane : planes) {
        if (glm::dot(plane, inView) + kVisibilityMargin < 0) return false;
    }
    return true;
}
