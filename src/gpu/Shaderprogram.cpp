#include "gpu/Shaderprogram.h"

#include "base/Logger.h"
#include "gpu/Shader.h"
#include "gpu/Texture.h"

#include <boost/variant/apply_visitor.hpp>
#include <glm/gtc/type_ptr.hpp>

#include <cstdio>
#include <cstdlib>

namespace {

const Shaderprogram* programInUse = nullptr;
std::string visitedName; // the uniform that a visit of a UniformVariant sets

} // namespace

Shaderprogram::~Shaderprogram()
{
    if (programInUse == this) programInUse = nullptr; // without a GL call: the context may have gone
}

void Shaderprogram::createProgram()
{
    if (programInUse == this) unuse();
    handle = GlObject(GlKind::Program);
    usable = false;
}

void Shaderprogram::attachShader(Shader* shader)
{
    glAttachShader(handle, shader->getHandle());
}

void Shaderprogram::link()
{
    declareFeedbackOutputs();
    std::printf("Linking program\n");
    glLinkProgram(handle);
    std::printf("%s\n", infoLog().c_str());
    std::printf("Shader compilation done\n");
    std::fflush(stdout); // keeps its place among the log's lines, which are flushed too
    if (handle == 0) std::exit(0);

    ++linkCount;
    GLint linked = GL_FALSE;
    glGetProgramiv(handle, GL_LINK_STATUS, &linked);
    usable = linked == GL_TRUE;
    tessellates = usable && hasTessellation();
    modeReported = false;
    if (!usable) {
        if (programInUse == this) unuse();
        logLine(0) << "couldn't link program: " << source << std::endl;
    }
}

void Shaderprogram::declareFeedbackOutputs() const
{
    if (feedbackOutputs.empty()) return;
    std::vector<const char*> names;
    for (const std::string& output : feedbackOutputs) names.push_back(output.c_str());
    glTransformFeedbackVaryings(handle, static_cast<GLsizei>(names.size()), names.data(), GL_INTERLEAVED_ATTRIBS);
}

std::string Shaderprogram::infoLog() const
{
    GLint length = 0;
    glGetProgramiv(handle, GL_INFO_LOG_LENGTH, &length);
    std::string messages(static_cast<std::size_t>(length), ' ');
    if (length > 0) glGetProgramInfoLog(handle, length, nullptr, messages.data());
    return messages;
}

bool Shaderprogram::hasTessellation() const
{
    GLint count = 0;
    glGetProgramiv(handle, GL_ATTACHED_SHADERS, &count);
    std::vector<GLuint> stages(static_cast<std::size_t>(count));
    glGetAttachedShaders(handle, count, nullptr, stages.data());
    for (const GLuint stage : stages) {
        GLint type = 0;
        glGetShaderiv(stage, GL_SHADER_TYPE, &type);
        if (type == GL_TESS_EVALUATION_SHADER) return true;
    }
    return false;
}

void Shaderprogram::use() const
{
    if (!usable) {
        unuse();
        return;
    }
    glUseProgram(handle);
    programInUse = this;
}

void Shaderprogram::unuse()
{
    glUseProgram(0);
    programInUse = nullptr;
}

const Shaderprogram* Shaderprogram::current()
{
    return programInUse;
}

bool Shaderprogram::acceptsMode(GLenum mode) const
{
    if ((mode == GL_PATCHES) == tessellates) return true;
    if (!modeReported) {
        logLine(0) << source
                   << (tessellates ? " draws patches only" : " lacks the tessellation stages that its model needs")
                   << std::endl;
        modeReported = true;
    }
    return false;
}

GLint Shaderprogram::getAttribLocation(const std::string& name) const
{
    if (!usable) return -1;
    const GLint location = glGetAttribLocation(handle, name.c_str());
    if (location == -1) logLine(1) << "Attribute not found! " << name << std::endl;
    return location;
}

GLint Shaderprogram::uniformLocation(const std::string& name) const
{
    return glGetUniformLocation(handle, name.c_str());
}

void Shaderprogram::setUniform(const std::string& name, float value) const
{
    if (usable) glUniform1f(uniformLocation(name), value);
}

void Shaderprogram::setUniform(const std::string& name, const glm::vec3& value) const
{
    if (usable) glUniform3fv(uniformLocation(name), 1, glm::value_ptr(value));
}

void Shaderprogram::setUniform(const std::string& name, const glm::vec4& value) const
{
    if (usable) glUniform4fv(uniformLocation(name), 1, glm::value_ptr(value));
}

void Shaderprogram::setUniform(const std::string& name, const glm::mat3& value, bool transpose, int count) const
{
    if (usable) glUniformMatrix3fv(uniformLocation(name), count, transpose, glm::value_ptr(value));
}

void Shaderprogram::setUniform(const std::string& name, const glm::mat4& value, bool transpose, int count) const
{
    if (usable) glUniformMatrix4fv(uniformLocation(name), count, transpose, glm::value_ptr(value));
}

void Shaderprogram::setUniform(const std::string& name, const Texture* texture, int unit) const
{
    setSampler(name, texture ? texture->getHandle() : 0, unit);
}

void Shaderprogram::setUniform(const std::string& name, const TextureUniform& value) const
{
    setUniform(name, value.texture, value.unit);
}

void Shaderprogram::setSampler(const std::string& name, GLuint textureName, int unit) const
{
    if (!usable) return;
    const GLint location = uniformLocation(name);
    glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
    glBindTexture(GL_TEXTURE_2D, textureName);
    glUniform1i(location, unit);
}

template <class T>
void Shaderprogram::operator()(IUniform<T>* uniform) const
{
    if (uniform) setUniform(visitedName, uniform->get());
}

void Shaderprogram::setUniform(const std::string& name, const UniformVariant& uniform) const
{
    visitedName = name;
    boost::apply_visitor(*this, uniform);
}
