#include "render/Skybox.h"

#include "assets/Library.h"
#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"

namespace {

constexpr float kHalfEdge = 500.0f; // world units

} // namespace

Skybox::Skybox()
{
    shader = Library::getInstance()->getShaderprogram("SkyboxShader");
    Mesh box;
    createBox(box, glm::vec3(-kHalfEdge), glm::vec3(kHalfEdge));
    makeGeometry(&box, {MeshAttribute::Position, MeshAttribute::Texcoord});
    bindUniforms({.model = false}); // the sky stays around the eye
    setName("Skybox");
    setCullable(false);
    isStatic = true;
    layer = ModelLayer::Sky;
}

void Skybox::draw()
{
    // The box is seen from inside, where its faces are wound the other way; nothing hides behind it, so both windings
    // may show.
    glDisable(GL_CULL_FACE);
    glDepthMask(GL_FALSE);
    Model::draw();
    glDepthMask(GL_TRUE);
    glEnable(GL_CULL_FACE);
}
