#pragma once

#include "gpu/GlObject.h"

#include <string>

/// One stage of a program: a GL shader object, compiled in the constructor (glCreateShader, glCompileShader). Owned by
/// the loader of the program, until that is linked: GL keeps an attached stage alive after its name is deleted.
class Shader {
public:
    /// Compile. type is a GL stage such as GL_VERTEX_SHADER; source counts up to its first NUL character. The
    /// compiler's messages go to the log at level 2.
    Shader(GLenum type, const std::string& source);

    GLuint getHandle() const { return handle; }

    /// Return whether it compiled. A stage that did not can be attached all the same; its program will not link.
    bool isCompiled() const;

    /// Return the info log of a shader object, with the terminating NUL that GL writes; may be empty.
    static std::string printShaderError(GLuint shader);

private:
    GlObject handle;
};
