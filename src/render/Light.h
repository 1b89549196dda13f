#pragma once

#include <glm/glm.hpp>

// The one light of the world: directional, looking from (0.3, 1, 0) towards the origin, over a square of 600 x 600
// units.

/// Return the direction towards it, of length 1.
glm::vec3 towardsLight();

/// Return the transform from world coordinates to the clip space of the light depth texture.
glm::mat4 lightViewProjection();

/// Return the transform from world coordinates to the light depth texture's coordinates and depth, all 0 to 1.
glm::mat4 biasedLightViewProjection();
