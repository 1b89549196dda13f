#pragma once

#include "gpu/IUniform.h"

/// A constant colour: red, green, blue, alpha, each 0 to 1.
class Uniform_Color final : public IUniform<glm::vec4> {
public:
    explicit Uniform_Color(glm::vec4 value) : color(value) {}

    glm::vec4 get() override { return color; }

private:
    glm::vec4 color;
};
