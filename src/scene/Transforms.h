#pragma once

#include <glm/glm.hpp>
#include <glm/gtc/matrix_transform.hpp>

// Transforms of nodes, in the units that poses are written down in.

inline glm::mat4 rotation(float degrees, const glm::vec3& axis)
{
    return glm::rotate(glm::mat4(1.0f), glm::radians(degrees), axis);
}

inline glm::mat4 translation(const glm::vec3& offset)
{
    return glm::translate(glm::mat4(1.0f), offset);
}
