#include "render/Light.h"

#include <glm/gtc/matrix_transform.hpp>

namespace {

constexpr float kHalfExtent = 300.0f; // world units, to either side of the origin
constexpr float kDepthReach = 100.0f; // world units, before and behind the light's eye

} // namespace

glm::mat4 lightViewProjection()
{
    const glm::mat4 projection =
        glm::ortho(-kHalfExtent, kHalfExtent, -kHalfExtent, kHalfExtent, -kDepthReach, kDepthReach);
    return projection * glm::lookAt(glm::vec3(0.3f, 1, 0), glm::vec3(0, 0, 0), glm::vec3(0, 1, 0));
}

glm::mat4 biasedLightViewProjection()
{
    const glm::mat4 bias(glm::vec4(0.5f, 0, 0, 0), glm::vec4(0, 0.5f, 0, 0), glm::vec4(0, 0, 0.5f, 0),
        glm::vec4(0.5f, 0.5f, 0.5f, 1));
    return bias * lightViewProjection();
}
