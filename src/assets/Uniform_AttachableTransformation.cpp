#include "assets/Uniform_AttachableTransformation.h"

#include "scene/Attachable.h"
#include "scene/Node.h"

glm::mat4 Uniform_AttachableTransformation::get()
{
    const Node* node = attachable->getNode();
    return node ? node->getWorldTransform() : glm::mat4(1.0f);
}
