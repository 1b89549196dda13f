#include "assets/HellknightModel.h"

#include "assets/Library.h"
#include "assets/MeshGeometry.h"
#include "assets/Uniform_AttachableTransformation.h"
#include "gpu/Shaderprogram.h"
#include "scene/Camera.h"
#include "scene/Mesh.h"

HellknightModel::HellknightModel()
{
    shader = Library::getInstance()->getShaderprogram("TextureShader");
    const Mesh* mesh = Library::getInstance()->getMesh("Hellknight");
    if (!mesh) return;
    geometry = std::make_unique<MeshGeometry>(*mesh,
        std::initializer_list<MeshAttribute>{MeshAttribute::Position, MeshAttribute::Normal, MeshAttribute::Texcoord});
    setGeometry(*geometry);
}

HellknightModel::~HellknightModel() = default;

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
