#include "render/Light.h"

#include <glm/gtc/matrix_transform.hpp>

namespace {

constexpr float kHalfExtent = 300.0f; // world units, to either side of the origin
constexpr float kDepthReach = 100.0f; // world units, before and behind the light's eye
constexpr glm::vec3 kEye(0.3f, 1, 0);

} // namespace

glm::vec3 towardsLight()
{
    return glm::normalize(kEye);
}

glm::mat4 lightViewProjection()
{
    static const glm::mat4 transform =
        glm::ortho(-kHalfExtent, kHalfExtent, -kHalfExtent, kHalfExtent, -kDepthReach, kDepthReach) *
        glm::lookAt(kEye, glm::vec3(0, 0, 0), glm::vec3(0, 1, 0));
    return transform;
}

glm::mat4 biasedLightViewProjection()
{
    const glm::mat4 bias(glm::vec4(0.5f, 0, 0, 0), glm::vec4(0, 0.5f, 0, 0), glm::vec4(0, 0, 0.5f, 0),
        glm::vec4(0.5f, 0.5f, 0.5f, 1));
    static const glm::mat4 transform = bias * lightViewProjection();
    return transform;
}
