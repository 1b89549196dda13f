#include "assets/CelModel.h"

#include "assets/IRenderServices.h"
#include "assets/Library.h"
#include "gpu/Shaderprogram.h"

CelModel::CelModel(const glm::vec4& color)
{
    shader = Library::getInstance()->getShaderprogram("Cel");
    bindUniforms({.normalMatrix = true, .color = color});
}

void CelModel::draw()
{
    IRenderServices* renderer = IRenderServices::current();
    if (!renderer || !isDrawable()) return;

    renderer->cullBackFaces();
    shader->setUniform("backface", 1.0f);
    drawShape();

    renderer->cullFrontFaces();
    shader->setUniform("backface", 0.0f);
    drawShape();
}
