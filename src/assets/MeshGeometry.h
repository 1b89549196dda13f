#pragma once

#include "gpu/IndexBuffer.h"
#include "gpu/VertexAttributeList.h"
#include "gpu/VertexBuffer.h"

#include <initializer_list>

class Mesh;

/// The per-vertex arrays of a mesh that a program can ask for, with the attribute names "position", "normal" and
/// "texcoord".
enum class MeshAttribute { Position, Normal, Texcoord };

/// A mesh on the GPU: its layout, vertex buffer and index buffer, uploaded in the constructor (GL_STATIC_DRAW). The
/// mesh is not needed afterwards. It must outlive the models that draw it.
class MeshGeometry {
public:
    MeshGeometry(const Mesh& mesh, std::initializer_list<MeshAttribute> attributes);

    VertexAttributeList layout;
    VertexBuffer vertices;
    IndexBuffer indices;
    const float boundingRadius; ///< around the mesh's origin, in its own units
};
