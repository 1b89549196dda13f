#include "render/GlDebug.h"

#include "base/Logger.h"

namespace {

// Some drivers report the older per-vendor categories, as source or as type.
const char* sourceName(GLenum source)
{
    switch (source) {
    case GL_DEBUG_SOURCE_API:
    case GL_DEBUG_CATEGORY_API_ERROR_AMD: return "API";
    case GL_DEBUG_SOURCE_WINDOW_SYSTEM:
    case GL_DEBUG_CATEGORY_WINDOW_SYSTEM_AMD: return "Window System";
    case GL_DEBUG_SOURCE_SHADER_COMPILER:
    case GL_DEBUG_CATEGORY_SHADER_COMPILER_AMD: return "Shader Compiler";
    case GL_DEBUG_SOURCE_THIRD_PARTY: return "Third Party";
    case GL_DEBUG_SOURCE_APPLICATION:
    case GL_DEBUG_CATEGORY_APPLICATION_AMD: return "Application";
    case GL_DEBUG_SOURCE_OTHER:
    case GL_DEBUG_CATEGORY_OTHER_AMD: return "Other";
    default: return "Unknown";
    }
}

const char* typeName(GLenum type)
{
    switch (type) {
    case GL_DEBUG_TYPE_ERROR: return "Error";
    case GL_DEBUG_TYPE_DEPRECATED_BEHAVIOR:
    case GL_DEBUG_CATEGORY_DEPRECATION_AMD: return "Deprecated Behavior";
    case GL_DEBUG_TYPE_UNDEFINED_BEHAVIOR:
    case GL_DEBUG_CATEGORY_UNDEFINED_BEHAVIOR_AMD: return "Undefined Behavior";
    case GL_DEBUG_TYPE_PORTABILITY: return "Portability";
    case GL_DEBUG_TYPE_PERFORMANCE:
    case GL_DEBUG_CATEGORY_PERFORMANCE_AMD: return "Performance";
    case GL_DEBUG_TYPE_OTHER:
    case GL_DEBUG_CATEGORY_OTHER_AMD: return "Other";
    default: return "Unknown";
    }
}

const char* severityName(GLenum severity)
{
    switch (severity) {
    case GL_DEBUG_SEVERITY_HIGH: return "High";
    case GL_DEBUG_SEVERITY_MEDIUM: return "Medium";
    case GL_DEBUG_SEVERITY_LOW: return "Low";
    default: return "Unknown";
    }
}

} // namespace

void GLAPIENTRY onGlDebugMessage(GLenum source, GLenum type, GLuint id, GLenum severity, GLsizei, const GLchar* message,
    const void*)
{
    logLine(0) << "OpenGL Error: " << message << " [Source = " << sourceName(source) << ", Type = " << typeName(type)
               << ", Severity = " << severityName(severity) << ", ID = " << id << "]" << std::endl;
}

void enableGlDebugOutput()
{
    if (glDebugMessageCallback) glDebugMessageCallback(onGlDebugMessage, nullptr);
    else if (glDebugMessageCallbackARB) glDebugMessageCallbackARB(onGlDebugMessage, nullptr);
    glEnable(GL_DEBUG_OUTPUT_SYNCHRONOUS);
}
