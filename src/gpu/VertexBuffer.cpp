#include "gpu/VertexBuffer.h"

#include "gpu/VertexAttributeList.h"

#include <cstring>

VertexBuffer::VertexBuffer(const VertexAttributeList* vertexLayout, unsigned count)
    : GLBuffer(GL_ARRAY_BUFFER), layout(vertexLayout), vertexCount(count), stride(vertexLayout->getStride())
{
}

void VertexBuffer::setAttributeData(const std::string& name, const void* data)
{
    if (staging.empty()) staging.resize(std::size_t{vertexCount} * stride);

    const std::size_t size = layout->getAttributeByteSize(name);
    if (size == 0) return; // not in the layout
    const std::size_t offset = layout->getAttributeOffset(name);
    const auto* source = static_cast<const unsigned char*>(data);
    for (std::size_t i = 0; i < vertexCount; ++i) std::memcpy(&staging[i * stride + offset], source + i * size, size);
}

void VertexBuffer::upload(GLenum usage)
{
    store(std::size_t{layout->getStride()} * vertexCount, staging.empty() ? nullptr : staging.data(), usage);
    staging = {};
}
