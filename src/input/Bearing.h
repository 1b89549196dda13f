#pragma once

#include <glm/glm.hpp>

// Directions as a driver sees them on a map.

/// Return the unit vector along the ground, or the null vector for one that has no such direction: two cars may stand
/// right above one another.
glm::vec3 flatDirection(const glm::vec3& vector);

/// Return the angle between two unit vectors in degrees, 0 to 180.
float angleBetween(const glm::vec3& a, const glm::vec3& b);
