#pragma once

#include <string>
#include <vector>

/// Makes every GL debug message of type error fail the running test, at the call that raised it. Needs a current debug context with its
/// entry points loaded; replaces the callback that was there.
void failTestsOnGlErrors();

/// While one lives, messages of the GLSL compiler do not fail the test: for tests that load spoiled shaders.
class CompilerErrorsExpected {
public:
    CompilerErrorsExpected();
    ~CompilerErrorsExpected();
    CompilerErrorsExpected(const CompilerErrorsExpected&) = delete;
    CompilerErrorsExpected& operator=(const CompilerErrorsExpected&) = delete;
};

/// While one lives, no message fails the test; they are kept instead.
class GlMessages {
public:
    GlMessages();
    ~GlMessages();
    GlMessages(const GlMessages&) = delete;
    GlMessages& operator=(const GlMessages&) = delete;

    std::vector<std::string> messages; ///< of every type, errors or not
};
