#pragma once

#include "assets/MeshGeometry.h"
#include "gpu/GlObject.h"
#include "scene/INodeVisitor.h"

#include <glm/glm.hpp>

#include <memory>
#include <vector>

class Mesh;

/// Overlays the scene's structure: a marker box at the origin of every node and the camera model at the pose of every
/// camera, without depth testing. Created by the application once meshes and shaders are loaded; the renderer walks the
/// scene with it before each render(). What failed to load is left out, a program until it is loaded anew.
class DebugRenderer final : public INodeVisitor {
public:
    DebugRenderer();

    void visitModel(Model*) override {}
    void visitCamera(Camera* camera) override;
    void visitAttachable(Attachable*) override {}
    void visitNode(Node* node) override;
    void releaseModel(Model*) override {}
    void releaseCamera(Camera* camera) override;
    void releaseAttachable(Attachable*) override {}
    void releaseNode(Node* node) override;

    /// Draw what the walk collected and forget it. Leave blending off and depth testing on.
    void render(Camera* camera);

private:
    /// One of the two shapes.
    struct Shape {
        std::unique_ptr<MeshGeometry> geometry; ///< null when its mesh failed to load
        GlObject vertexArray;                   ///< empty until there is a usable program
    };

    static Shape makeShape(const Mesh* mesh);
    static void drawAll(Shape& shape, const std::vector<glm::mat4>& poses, const Camera& camera);

    std::vector<glm::vec3> nodePositions;
    std::vector<glm::mat4> cameraPoses;
    Shape marker;
    Shape cameraModel;
};
