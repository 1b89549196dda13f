#include "render/DebugRenderer.h"

#include "assets/Library.h"
#include "gpu/DrawCalls.h"
#include "gpu/Shaderprogram.h"
#include "scene/Camera.h"
#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"
#include "scene/Node.h"
#include "scene/Transforms.h"

#include <algorithm>

namespace {

constexpr float kMarkerHalfEdge = 0.15f; // world units

template <class T>
void removeFirst(std::vector<T>& sequence, const T& value)
{
    const auto found = std::find(sequence.begin(), sequence.end(), value);
    if (found != sequence.end()) sequence.erase(found);
}

} // namespace

DebugRenderer::DebugRenderer()
{
    Mesh box;
    createBox(box, glm::vec3(-kMarkerHalfEdge), glm::vec3(kMarkerHalfEdge));
    marker = makeShape(&box);
    cameraModel = makeShape(Library::getInstance()->getMesh("Camera"));
}

DebugRenderer::Shape DebugRenderer::makeShape(const Mesh* mesh)
{
    const auto attributes = {MeshAttribute::Position};
    return {mesh ? std::make_unique<MeshGeometry>(*mesh, attributes) : nullptr, {}};
}

void DebugRenderer::visitCamera(Camera* camera)
{
    cameraPoses.push_back(camera->getNode()->getWorldTransform());
}

void DebugRenderer::visitNode(Node* node)
{
    nodePositions.push_back(node->getWorldPosition());
}

void DebugRenderer::releaseCamera(Camera* camera)
{
    removeFirst(cameraPoses, camera->getNode()->getWorldTransform());
}

void DebugRenderer::releaseNode(Node* node)
{
    removeFirst(nodePositions, node->getWorldPosition());
}

void DebugRenderer::render(Camera* camera)
{
    glDisable(GL_DEPTH_TEST);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);

    std::vector<glm::mat4> markerPoses;
    for (const glm::vec3& position : nodePositions) markerPoses.push_back(translation(position));
    drawAll(marker, markerPoses, *camera);
    drawAll(cameraModel, cameraPoses, *camera);

    Shaderprogram::unuse();
    glDisable(GL_BLEND);
    glEnable(GL_DEPTH_TEST);
    nodePositions.clear();
    cameraPoses.clear();
}

void DebugRenderer::drawAll(Shape& shape, const std::vector<glm::mat4>& poses, const Camera& camera)
{
    const Shaderprogram* program = Library::getInstance()->getShaderprogram("WireframeShader", false);
    if (!program || !shape.geometry) return;
    const MeshGeometry& geometry = *shape.geometry;
    if (!shape.vertexArray)
        shape.vertexArray = GlObject(GlKind::VertexArray, geometry.layout.createVAO(program, &geometry.vertices));
    program->use();
    program->setUniform("view", camera.getView());
    program->setUniform("projection", camera.getProjection());
    for (const glm::mat4& pose : poses) {
        program->setUniform("model", pose);
        drawVertexArray(shape.vertexArray, GL_TRIANGLES, &geometry.vertices, &geometry.indices);
    }
}
