#include "input/Bearing.h"

#include <algorithm>
#include <cmath>

glm::vec3 flatDirection(const glm::vec3& vector)
{
    const glm::vec3 flat(vector.x, 0, vector.z);
    const float length = glm::length(flat);
    return length > 0 ? flat / length : flat;
}

float angleBetween(const glm::vec3& a, const glm::vec3& b)
{
    return glm::degrees(std::acos(std::clamp(glm::dot(a, b), -1.0f, 1.0f)));
}
