#include "render/CameraUniforms.h"

#include "render/Renderer.h"
#include "scene/Camera.h"

glm::mat4 Uniform_ViewMatrix::get()
{
    return renderer->getCurrentCamera()->getView();
}

glm::mat4 Uniform_ProjectionMatrix::get()
{
    return renderer->getCurrentCamera()->getProjection();
}

glm::mat3 Uniform_NormalMatrix::get()
{
    return renderer->getCurrentCamera()->getNormalMatrix();
}
