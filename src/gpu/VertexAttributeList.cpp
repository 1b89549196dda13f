#include "gpu/VertexAttributeList.h"

#include "base/Logger.h"
#include "gpu/Shaderprogram.h"
#include "gpu/VertexBuffer.h"

namespace {

constexpr GLuint kBindingPoint = 0;

GLint components(VertexAttributeType type)
{
    constexpr GLint kComponents[] = {4, 3, 2, 1};
    return kComponents[type];
}

unsigned byteSize(VertexAttributeType type)
{
    return static_cast<unsigned>(components(type)) * static_cast<unsigned>(sizeof(float));
}

} // namespace

void VertexAttributeList::addAttribute(const VertexAttribute& attribute)
{
    logLine(2) << "Add Vertex Attribute " << attribute.name << std::endl;
    attributes.insert({attribute.name, attribute.type});
}

unsigned VertexAttributeList::getAttributeByteSize(const std::string& name) const
{
    const auto entry = attributes.find(name);
    if (entry == attributes.end()) {
        logLine(1) << "AttributeByteSize 0" << std::endl;
        return 0;
    }
    return byteSize(entry->second);
}

unsigned VertexAttributeList::getAttributeOffset(const std::string& name) const
{
    unsigned offset = 0;
    for (const auto& [attributeName, type] : attributes) {
        if (attributeName == name) return offset;
        offset += byteSize(type);
    }
    return offset;
}

unsigned VertexAttributeList::getStride() const
{
    return getAttributeOffset(""); // no attribute has the empty name
}

GLuint VertexAttributeList::createVAO(const Shaderprogram* program, const VertexBuffer* buffer) const
{
    if (!program || !program->isUsable() || !buffer) return 0;

    GLuint vao = 0;
    glGenVertexArrays(1, &vao);
    glBindVertexArray(vao);
    buffer->bindVertexBuffer(kBindingPoint, 0, static_cast<GLsizei>(getStride()));
    for (const auto& [name, type] : attributes) {
        const GLint location = program->getAttribLocation(name);
        if (location == -1) {
            logLine(1) << "Location for " << name << " not found, continue" << std::endl;
            continue;
        }
        const auto index = static_cast<GLuint>(location);
        glEnableVertexAttribArray(index);
        glVertexAttribFormat(index, components(type), GL_FLOAT, GL_FALSE, getAttributeOffset(name));
        glVertexAttribBinding(index, kBindingPoint);
    }
    glBindVertexArray(0);
    return vao;
}
