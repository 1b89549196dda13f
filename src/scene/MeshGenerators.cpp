#include "scene/MeshGenerators.h"

#include "base/Assert.h"
#include "scene/Mesh.h"

#include <cmath>

namespace {

constexpr double kFullTurn = 6.283; // radians, short of two pi on purpose: the ring's seam is part of the tyre's shape

struct Corner {
    bool x, y, z; ///< true takes the component of the upper corner
    float u, v;
};

// Faces in the order +Z, +X, +Y, -X, -Y, -Z, four corners each; the texture is split into 4 x 2 cells.
constexpr Corner kBoxCorners[] = {
    {true, true, true, 0.5f, 0.5f},
    {false, true, true, 0.25f, 0.5f},
    {false, false, true, 0.25f, 0.0f},
    {true, false, true, 0.5f, 0.0f},
    {true, true, true, 0.5f, 0.5f},
    {true, false, true, 0.5f, 0.0f},
    {true, false, false, 0.75f, 0.0f},
    {true, true, false, 0.75f, 0.5f},
    {true, true, true, 0.5f, 0.5f},
    {true, true, false, 0.5f, 1.0f},
    {false, true, false, 0.25f, 1.0f},
    {false, true, true, 0.25f, 0.5f},
    {false, true, true, 0.25f, 0.5f},
    {false, true, false, 0.0f, 0.5f},
    {false, false, false, 0.0f, 0.0f},
    {false, false, true, 0.25f, 0.0f},
    {false, false, false, 0.0f, 0.0f},
    {true, false, false, 0.0f, 0.0f},
    {true, false, true, 0.0f, 0.0f},
    {false, false, true, 0.0f, 0.0f},
    {true, false, false, 0.75f, 0.0f},
    {false, false, false, 1.0f, 0.0f},
    {false, true, false, 1.0f, 0.5f},
    {true, true, false, 0.75f, 0.5f},
};
constexpr int kBottomFace = 4;

void appendRing(Mesh& mesh, float radius, float y, int segments)
{
    for (int i = 0; i < segments; ++i) {
        const double angle = i * kFullTurn / segments;
        mesh.positions.emplace_back(static_cast<float>(static_cast<double>(radius) * std::cos(angle)), y,
            static_cast<float>(static_cast<double>(radius) * std::sin(angle)));
    }
}

void appendTriangle(Mesh& mesh, int a, int b, int c)
{
    for (int index : {a, b, c}) mesh.indices.push_back(static_cast<unsigned short>(index));
}

} // namespace

void createBox(Mesh& mesh, const glm::vec3& min, const glm::vec3& max)
{
    for (const Corner& corner : kBoxCorners) {
        mesh.positions.emplace_back(corner.x ? max.x : min.x, corner.y ? max.y : min.y, corner.z ? max.z : min.z);
        mesh.texcoords.emplace_back(corner.u, corner.v);
    }
    for (int face = 0; face < 6; ++face) {
        const int b = 4 * face;
        if (face == kBottomFace) appendTriangle(mesh, b, b + 1, b + 2);
        else appendTriangle(mesh, b, b + 2, b + 1);
        appendTriangle(mesh, b + 2, b, b + 3);
    }
}

void createCylinder(Mesh& mesh, float radius, float height, int segments)
{
    QKD_ASSERT(segments >= 1, "a cylinder has at least one segment");
    const int bottom = segments + 1;
    mesh.positions.emplace_back(0.0f, height / 2, 0.0f);
    appendRing(mesh, radius, height / 2, segments);
    mesh.positions.emplace_back(0.0f, -height / 2, 0.0f);
    appendRing(mesh, radius, -height / 2, segments);

    for (int i = 0; i < segments; ++i) appendTriangle(mesh, 0, i + 1, (i + 1) % segments + 1);
    for (int i = 0; i < segments; ++i) appendTriangle(mesh, bottom, (i + 1) % segments + bottom + 1, i + bottom + 1);
    for (int i = 0; i < segments; ++i) {
        const int next = (i + 1) % segments;
        appendTriangle(mesh, i + 1, i + bottom + 1, next + 1);
        appendTriangle(mesh, i + bottom + 1, next + bottom + 1, next + 1);
    }
}
