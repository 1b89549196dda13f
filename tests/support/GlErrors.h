#pragma once

#include <string>
#include <vector>

/// Makes every GL debug message of type error fail the running test, at the call that raised it. Needs a current debug context with its
/// entry points loaded; replaces the callback that was there.
void failTestsOnGlErrors();

/// While one lives, no message fails the test; all are kept instead, of every type. One at a time.
class GlMessages {
public:
    GlMessages() : GlMessages(false) {}
    ~GlMessages();
    GlMessages(const GlMessages&) = delete;
    GlMessages& operator=(const GlMessages&) = delete;

    std::vector<std::string> messages;
    const bool ofTheCompilerOnly;

protected:
    explicit GlMessages(bool compilerOnly);
};

/// Keeps messages of the GLSL compiler only: for tests that load spoiled shaders.
class CompilerErrorsExpected : public GlMessages {
public:
    CompilerErrorsExpected() : GlMessages(true) {}
};
