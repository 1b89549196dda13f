#pragma once

#include <GL/glew.h>

#include <string>

/// One stage of a program: a GL shader object, compiled in the constructor (glCreateShader, glCompileShader). Needed
/// only until the program that it was attached to is linked: GL keeps an attached stage alive after its name is
/// deleted.
class Shader {
public:
    /// type is a GL stage such as GL_VERTEX_SHADER; source counts up to its first NUL character. The compiler's
    /// messages go to the log at level 2.
    Shader(GLenum type, const std::string& source);
    ~Shader();
    Shader(const Shader&) = delete;
    Shader& operator=(const Shader&) = delete;

    GLuint getHandle() const { return handle; }

    /// A stage that does not compile can be attached all the same; its program will not link.
    bool isCompiled() const;

    /// The info log of a shader object, with the terminating NUL that GL writes; may be empty.
    static std::string printShaderError(GLuint shader);

private:
    GLuint handle;
};
