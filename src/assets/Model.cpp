#include "assets/Model.h"

#include "assets/IRenderServices.h"
#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"

void Model::draw()
{
    if (isDrawable()) drawVertexArray(vao, drawMode, vertexBuffer, indexBuffer);
}

bool Model::isDrawable() const
{
    return shader && shader->isUsable() && hasGeometry();
}

bool Model::hasGeometry() const
{
    return vao != 0 && vertexBuffer && vertexBuffer->getVertexCount() > 0 &&
        (!indexBuffer || indexBuffer->getCount() > 0);
}

void Model::bindShader() const
{
    if (shader) shader->use();
    else Shaderprogram::unuse();
}

void Model::applyUniforms() const
{
    if (!shader) return;
    for (const auto& [uniformName, source] : uniforms) shader->setUniform(uniformName, source);
}

void Model::createVAO(const VertexAttributeList* attributes)
{
    layout = attributes;
    vao = GlObject(GlKind::VertexArray, layout->createVAO(shader, vertexBuffer));
}

void Model::completeVAO()
{
    if (vao == 0 && layout) createVAO(layout);
}

void Model::setGeometry(MeshGeometry& geometry)
{
    setVertexBuffer(&geometry.vertices);
    setIndexBuffer(&geometry.indices);
    boundingRadius = geometry.boundingRadius;
    createVAO(&geometry.layout);
}

void Model::makeGeometry(const Mesh* mesh, std::initializer_list<MeshAttribute> attributes)
{
    if (mesh) setGeometry(ownGeometry.emplace(*mesh, attributes));
}

void Model::bindUniforms(const CommonUniforms& wanted)
{
    if (IRenderServices* renderer = IRenderServices::current()) {
        uniforms["view"] = renderer->getGlobalUniform("viewMatrix");
        uniforms["projection"] = renderer->getGlobalUniform("projectionMatrix");
        if (wanted.normalMatrix) uniforms["normalMatrix"] = renderer->getGlobalUniform("normalMatrix");
    }
    if (wanted.model) uniforms["model"] = &transformation;
    if (wanted.color) uniforms["color"] = &ownColor.emplace(*wanted.color);
}
