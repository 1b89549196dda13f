#include "support/DataCapturedLog.h"

#include "render/GlDebug.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Name {
    GLenum value;
    const char* name;
};

std::string lineFor(GLenum source, GLenum type, GLenum severity)
{
    CapturedLog log;
    onGlDebugMessage(source, type, 1281, severity, 4, "text", nullptr);
    return log.text();
}

std::string expected(const char* source, const char* type, const char* severity)
{
    return std::string("ERROR | OpenGL Error: text [Source = ") + source + ", Type = " + type + ", Severity = " + severity +
        ", ID = 1281]\n";
}

TEST(GlDebugMessage, IsOneErrorLineWithNamesForEveryPart)
{
    const Name sources[] = {{GL_DEBUG_SOURCE_API, "API"}, {GL_DEBUG_CATEGORY_API_ERROR_AMD, "API"},
        {GL_DEBUG_SOURCE_WINDOW_SYSTEM, "Window System"}, {GL_DEBUG_CATEGORY_WINDOW_SYSTEM_AMD, "Window System"},
        {GL_DEBUG_SOURCE_SHADER_COMPILER, "Shader Compiler"}, {GL_DEBUG_CATEGORY_SHADER_COMPILER_AMD, "Shader Compiler"},
        {GL_DEBUG_SOURCE_THIRD_PARTY, "Third Party"}, {GL_DEBUG_SOURCE_APPLICATION, "Application"},
        {GL_DEBUG_CATEGORY_APPLICATION_AMD, "Application"}, {GL_DEBUG_SOURCE_OTHER, "Other"}, {GL_DEBUG_CATEGORY_OTHER_AMD, "Other"},
        {GL_DEBUG_TYPE_MARKER, "Unknown"}};
    for (const Name& row : sources)
        EXPECT_EQ(lineFor(row.value, GL_DEBUG_TYPE_ERROR, GL_DEBUG_SEVERITY_HIGH), expected(row.name, "Error", "High"));

    const Name types[] = {{GL_DEBUG_TYPE_DEPRECATED_BEHAVIOR, "Deprecated Behavior"},
        {GL_DEBUG_CATEGORY_DEPRECATION_AMD, "Deprecated Behavior"}, {GL_DEBUG_TYPE_UNDEFINED_BEHAVIOR, "Undefined Behavior"},
        {GL_DEBUG_CATEGORY_UNDEFINED_BEHAVIOR_AMD, "Undefined Behavior"}, {GL_DEBUG_TYPE_PORTABILITY, "Portability"},
        {GL_DEBUG_TYPE_PERFORMANCE, "Performance"}, {GL_DEBUG_CATEGORY_PERFORMANCE_AMD, "Performance"}, {GL_DEBUG_TYPE_OTHER, "Other"},
        {GL_DEBUG_CATEGORY_OTHER_AMD, "Other"}, {GL_DEBUG_TYPE_MARKER, "Unknown"}};
    for (const Name& row : types)
        EXPECT_EQ(lineFor(GL_DEBUG_SOURCE_API, row.value, GL_DEBUG_SEVERITY_LOW), expected("API", row.name, "Low"));

    const Name severities[] = {{GL_DEBUG_SEVERITY_MEDIUM, "Medium"}, {GL_DEBUG_SEVERITY_NOTIFICATION, "Unknown"}};
    for (const Name& row : severities)
        EXPECT_EQ(lineFor(GL_DEBUG_SOURCE_API, GL_DEBUG_TYPE_ERROR, row.value), expected("API", "Error", row.name));
}

} // namespace
