#include "assets/BallModel.h"

#include "assets/Icosphere.h"
#include "scene/Mesh.h"

namespace {

constexpr float kRadius = 1.0f; // world units, as the ball of the physics world

/// Return the sphere of every ball, which stays until the process ends.
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

BallModel::BallModel(const glm::vec4& color) : CelModel(color)
{
    setName("Ball");
    setGeometry(sphere());
}
