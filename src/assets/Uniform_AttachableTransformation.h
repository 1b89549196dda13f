#pragma once

#include "gpu/IUniform.h"

class Attachable;

/// The world transform of the node that an attachable hangs on, read at the moment of drawing; identity while it hangs
/// on none.
class Uniform_AttachableTransformation : public IUniform<glm::mat4> {
public:
    explicit Uniform_AttachableTransformation(Attachable* source) : attachable(source) {}

    glm::mat4 get() override;

private:
    Attachable* attachable;
};
