#include "render/ShadowMappingRender.h"

#include "assets/Library.h"
#include "assets/Model.h"
#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"
#include "render/Light.h"
#include "scene/Node.h"

#include <GL/glew.h>

#include <algorithm>
#include <iterator>

void ShadowMappingRender::render()
{
    draw(casters());
}

std::vector<Model*> ShadowMappingRender::casters() const
{
    std::vector<Model*> result;
    std::copy_if(registry.begin(), registry.end(), std::back_inserter(result),
        [](Model* model) { return model->castsShadow; });
    return result;
}

void ShadowMappingRender::draw(const std::vector<Model*>& models)
{
    const glm::mat4 depthViewProjection = lightViewProjection();
    Shaderprogram* program = Library::getInstance()->getShaderprogram("ShadowDepth", false);
    if (!program) return;
    program->use();
    for (const Model* model : models) {
        const Model& shape = model->getShadowShape();
        if (!shape.hasGeometry()) continue;
        program->setUniform("mvp", depthViewProjection * model->getNode()->getWorldTransform());
        drawVertexArray(shape.vao, GL_TRIANGLES, shape.vertexBuffer, shape.indexBuffer);
    }
    Shaderprogram::unuse();
}
