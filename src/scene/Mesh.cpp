#include "scene/Mesh.h"

#include <cstddef>
#include <utility>

void Mesh::getBounds(glm::vec3& min, glm::vec3& max) const
{
    for (const glm::vec3& position : positions) {
        min = glm::min(min, position);
        max = glm::max(max, position);
    }
}

void Mesh::calculateNormals()
{
    normals.assign(positions.size(), glm::vec3(0.0f));
    for (std::size_t i = 0; i + 2 < indices.size(); i += 3) {
        const glm::vec3 &p0 = positions[indices[i]], &p1 = positions[indices[i + 1]], &p2 = positions[indices[i + 2]];
        const glm::vec3 faceNormal = -glm::normalize(glm::cross(p1 - p0, p2 - p0));
        for (std::size_t corner = 0; corner < 3; ++corner) normals[indices[i + corner]] += faceNormal;
    }
    for (glm::vec3& normal : normals) normal = glm::normalize(normal);
}

void Mesh::swapNormalAxes(bool x, bool y, bool z)
{
    for (glm::vec3& normal : normals) {
        if (x && y) std::swap(normal.x, normal.y);
        else if (x && z) std::swap(normal.x, normal.z);
        else if (y && z) std::swap(normal.y, normal.z);
    }
}

void Mesh::invertNormalAxes(bool x, bool y, bool z)
{
    for (glm::vec3& normal : normals) {
        if (x) normal.x = -normal.x;
        else if (y) normal.y = -normal.y;
        else if (z) normal.z = -normal.z;
    }
}
