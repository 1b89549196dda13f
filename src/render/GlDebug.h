#pragma once

#include <GL/glew.h>

/// Log an OpenGL debug message as one line at level 0, whatever its severity. The driver calls this on the rendering
/// thread, inside the offending call.
void GLAPIENTRY onGlDebugMessage(GLenum source, GLenum type, GLuint id, GLenum severity, GLsizei length,
    const GLchar* message, const void* user);

/// Register the callback at whichever entry point the driver has and make messages synchronous.
void enableGlDebugOutput();
