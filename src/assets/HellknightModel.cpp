#include "assets/HellknightModel.h"

#include "assets/Library.h"
#include "gpu/Shaderprogram.h"
#include "scene/Camera.h"

HellknightModel::HellknightModel()
{
    shader = Library::getInstance()->getShaderprogram("TextureShader");
    makeGeometry(Library::getInstance()->getMesh("Hellknight"),
        {MeshAttribute::Position, MeshAttribute::Normal, MeshAttribute::Texcoord});
}

void HellknightModel::setUniforms(Camera* camera)
{
    if (!shader) return;
    shader->setUniform("view", camera->getView());
    shader->setUniform("projection", camera->getProjection());
    shader->setUniform("normalMatrix", camera->getNormalMatrix());
    shader->setUniform("tex", Library::getInstance()->getTexture("Hellknight_Diffuse"), 0);
    shader->setUniform("model", Uniform_AttachableTransformation(this).get());
}

void HellknightModel::bind(Camera* camera)
{
    bindShader();
    setUniforms(camera);
}
