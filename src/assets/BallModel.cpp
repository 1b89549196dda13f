#include "assets/BallModel.h"

#include "assets/Icosphere.h"
#include "assets/MeshGeometry.h"
#include "gpu/DrawCalls.h"
#include "scene/Mesh.h"

namespace {

constexpr float kRadius = 1.0f; // world units, as the ball of the physics world

/// Shared by every ball, until the process ends.
MeshGeometry& sphere()
{
    static MeshGeometry* geometry = [] {
        Mesh mesh;
        createIcosphere(mesh, kRadius);
        return new MeshGeometry(mesh, {MeshAttribute::Position, MeshAttribute::Normal});
    }();
    return *geometry;
}

} // namespace

BallModel::BallModel(const glm::vec4& color)
{
    setName("Ball");
    setGeometry(sphere());
    bindUniforms({.normalMatrix = true, .color = color});
}

BallModel::~BallModel()
{
    deleteVertexArray(vao);
}
