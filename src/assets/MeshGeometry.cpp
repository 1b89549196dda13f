#include "assets/MeshGeometry.h"

#include "scene/Mesh.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

struct Source {
    VertexAttribute attribute;
    const void* data; // tightly packed, one element a vertex
};

Source sourceOf(MeshAttribute attribute, const Mesh& mesh)
{
    switch (attribute) {
    case MeshAttribute::Normal: return {{ATTRIBUTE_VEC3, "normal"}, mesh.normals.data()};
    case MeshAttribute::Texcoord: return {{ATTRIBUTE_VEC2, "texcoord"}, mesh.texcoords.data()};
    default: return {{ATTRIBUTE_VEC3, "position"}, mesh.positions.data()};
    }
}

float radiusOf(const Mesh& mesh)
{
    float radius = 0;
    for (const glm::vec3& position : mesh.positions) radius = std::max(radius, glm::length(position));
    return radius;
}

} // namespace

MeshGeometry::MeshGeometry(const Mesh& mesh, std::initializer_list<MeshAttribute> attributes)
    : layout(layoutOf(attributes)), vertices(&layout, mesh.getVertexCount()), boundingRadius(radiusOf(mesh))
{
    for (const MeshAttribute attribute : attributes) {
        const Source source = sourceOf(attribute, mesh);
        vertices.setAttributeData(source.attribute.name, source.data);
    }
    vertices.upload(GL_STATIC_DRAW);

    std::vector<unsigned short> triangles = mesh.indices; // setIndices() may write to what it is given
    indices.setIndices(static_cast<unsigned>(triangles.size()), triangles.data(), false);
}

VertexAttributeList MeshGeometry::layoutOf(std::initializer_list<MeshAttribute> attributes)
{
    VertexAttributeList result;
    for (const MeshAttribute attribute : attributes) result.addAttribute(sourceOf(attribute, Mesh()).attribute);
    return result;
}
