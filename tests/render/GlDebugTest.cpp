#include "support/DataCapturedLog.h"

#include "render/GlDebug.h"

namespace {

TEST(GlDebugMessage, IsOneErrorLineWithNamesForEveryPart)
{
    struct Row {
        GLenum source, type, severity;
        const char* names;
    };
    const Row rows[] = {{GL_DEBUG_SOURCE_API, GL_DEBUG_TYPE_ERROR, GL_DEBUG_SEVERITY_HIGH, "Source = API, Type = Error, Severity = High"},
        {GL_DEBUG_CATEGORY_WINDOW_SYSTEM_AMD, GL_DEBUG_CATEGORY_PERFORMANCE_AMD, GL_DEBUG_SEVERITY_LOW,
            "Source = Window System, Type = Performance, Severity = Low"},
        {GL_DEBUG_TYPE_MARKER, GL_DEBUG_TYPE_MARKER, GL_DEBUG_SEVERITY_NOTIFICATION,
            "Source = Unknown, Type = Unknown, Severity = Unknown"}};
    for (const Row& row : rows) {
        CapturedLog log;
        onGlDebugMessage(row.source, row.type, 1281, row.severity, 4, "text", nullptr);
        EXPECT_EQ(log.text(), std::string("ERROR | OpenGL Error: text [") + row.names + ", ID = 1281]\n");
    }
}

} // namespace
