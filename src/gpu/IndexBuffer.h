#pragma once

#include "gpu/GLBuffer.h"

/// Triangle indices of 16 bits: they reach 65,536 vertices.
class IndexBuffer : public GLBuffer {
public:
    IndexBuffer() : GLBuffer(GL_ELEMENT_ARRAY_BUFFER) {}

    /// Store the indices. flipWinding first swaps the last two of every whole triangle, in the caller's array.
    void setIndices(unsigned newCount, unsigned short* indices, bool flipWinding);

    unsigned getCount() const { return count; } ///< 0 until indices are set

private:
    unsigned count = 0;
};
