#pragma once

#include "render/GlobalUniform.h"

#include <glm/glm.hpp>

// The matrices of the camera that is being drawn. The renderer owns one source of each, which serves every viewport.

class Uniform_ViewMatrix : public GlobalUniform<glm::mat4> {
public:
    using GlobalUniform::GlobalUniform;
    glm::mat4 get() override;
};

class Uniform_ProjectionMatrix : public GlobalUniform<glm::mat4> {
public:
    using GlobalUniform::GlobalUniform;
    glm::mat4 get() override;
};

class Uniform_NormalMatrix : public GlobalUniform<glm::mat3> {
public:
    using GlobalUniform::GlobalUniform;
    glm::mat3 get() override;
};
