#pragma once

#include "gpu/GLBuffer.h"

#include <string>
#include <vector>

class VertexAttributeList;

/// An array of interleaved vertices, owned with the model or mesh that it draws. setAttributeData() for each attribute,
/// then upload(); the layout is borrowed, may be shared, and must be complete before.
class VertexBuffer : public GLBuffer {
public:
    VertexBuffer(const VertexAttributeList* vertexLayout, unsigned count);

    void setVertexCount(unsigned n) { vertexCount = n; } ///< before the first attribute is written
    unsigned getVertexCount() const { return vertexCount; }
    unsigned getStride() const { return stride; } ///< bytes of one vertex

    /// Copy one attribute of every vertex, tightly packed in `data`, into the staging array. Attributes never written
    /// stay zero.
    void setAttributeData(const std::string& name, const void* data);

    /// Send the staged vertices to the GPU and empty the staging array.
    void upload(GLenum usage);

private:
    const VertexAttributeList* layout;
    std::vector<unsigned char> staging; // empty until the first attribute is written
    unsigned vertexCount;
    unsigned stride;
};
