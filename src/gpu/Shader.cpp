#include "gpu/Shader.h"

#include "base/Logger.h"

Shader::Shader(GLenum type, const std::string& source) : handle(GlKind::Shader, glCreateShader(type))
{
    logLine(2) << "Compile Shader ..." << std::endl;
    const char* text = source.c_str();
    glShaderSource(handle, 1, &text, nullptr);
    glCompileShader(handle);

    const std::string messages = printShaderError(handle);
    if (!messages.empty() && messages[0] != '\0') logLine(2) << messages.c_str() << std::endl;
}

bool Shader::isCompiled() const
{
    GLint compiled = GL_FALSE;
    glGetShaderiv(handle, GL_COMPILE_STATUS, &compiled);
    return compiled == GL_TRUE;
}

std::string Shader::printShaderError(GLuint shader)
{
    GLint length = 0;
    glGetShaderiv(shader, GL_INFO_LOG_LENGTH, &length);
    std::string messages(static_cast<std::size_t>(length), ' ');
    if (length > 0) glGetShaderInfoLog(shader, length, nullptr, messages.data());
    return messages;
}
