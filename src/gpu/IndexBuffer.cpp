#include "gpu/IndexBuffer.h"

#include <utility>

void IndexBuffer::setIndices(unsigned newCount, unsigned short* indices, bool flipWinding)
{
    count = newCount;
    if (flipWinding)
        for (unsigned triangle = 0; triangle < count / 3; ++triangle)
            std::swap(indices[3 * triangle + 1], indices[3 * triangle + 2]);
    setData<unsigned short>(count, indices, GL_STATIC_DRAW);
}
