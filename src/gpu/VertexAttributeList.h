#pragma once

#include <GL/glew.h>

#include <map>
#include <string>

class Shaderprogram;
class VertexBuffer;

/// Every attribute is a row of 32-bit floats.
enum VertexAttributeType {
    ATTRIBUTE_VEC4 = 0,
    ATTRIBUTE_VEC3 = 1,
    ATTRIBUTE_VEC2 = 2,
    ATTRIBUTE_FLOAT = 3,
};

struct VertexAttribute {
    VertexAttributeType type;
    std::string name; ///< as in the vertex shader; not empty
};

/// The layout of one interleaved vertex. Attributes lie in ascending order of their names, whatever order they were
/// added in. Add all attributes, then build vertex buffers and vertex arrays on the list; it must not change afterwards
/// and outlives the buffers.
class VertexAttributeList {
public:
    /// Add an attribute; a name that is already there keeps its first type.
    void addAttribute(const VertexAttribute& attribute);

    /// Return the bytes of one value; 0, with a log line at level 1, for a name that is not in the list.
    unsigned getAttributeByteSize(const std::string& name) const;

    /// Return the bytes from the start of the vertex; the whole stride for a name that is not in the list.
    unsigned getAttributeOffset(const std::string& name) const;

    unsigned getStride() const; ///< bytes of one vertex

    /// Return a new vertex array object that feeds the buffer to the program's attributes, by the separate vertex
    /// format (binding point 0). An attribute that the program lacks is reported at level 1 and left out. The caller
    /// puts it into a GlObject. Return 0, which the draw wrappers skip, when the program or the buffer is null or the
    /// program is not usable.
    GLuint createVAO(const Shaderprogram* program, const VertexBuffer* buffer) const;

private:
    std::map<std::string, VertexAttributeType> attributes;
};
