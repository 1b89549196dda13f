#include "assets/MeshGeometry.h"

#include "scene/Mesh.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

struct Source {
    VertexAttribute attribute;
    const void* (*data)(const Mesh&); // tightly packed, one element a vertex
};

const Source& sourceOf(MeshAttribute attribute)
{
    static const Source sources[] = {
        // in the order of the enumeration
        {{ATTRIBUTE_VEC3, "position"}, [](const Mesh& mesh) -> const void* { return mesh.positions.data(); }},
        {{ATTRIBUTE_VEC3, "normal"}, [](const Mesh& mesh) -> const void* { return mesh.normals.data(); }},
        {{ATTRIBUTE_VEC2, "texcoord"}, [](const Mesh& mesh) -> const void* { return mesh.texcoords.data(); }},
    };
    return sources[static_cast<int>(attribute)];
}

VertexAttributeList layoutOf(std::initializer_list<MeshAttribute> attributes)
{
    VertexAttributeList layout;
    for (const MeshAttribute attribute : attributes) layout.addAttribute(sourceOf(attribute).attribute);
    return layout;
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
        const Source& source = sourceOf(attribute);
        vertices.setAttributeData(source.attribute.name, source.data(mesh));
    }
    vertices.upload(GL_STATIC_DRAW);

    std::vector<unsigned short> triangles = mesh.indices; // setIndices() may write to what it is given
    indices.setIndices(static_cast<unsigned>(triangles.size()), triangles.data(), false);
}
