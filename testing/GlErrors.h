#pragma once

/// Makes every GL debug message of type error fail the running test, at the call that raised it. Needs a current debug
/// context with its entry points loaded; replaces the callback that was there.
void failTestsOnGlErrors();

/// While one lives, messages of the GLSL compiler fail no test: for tests that load spoiled shaders. One at a time.
class CompilerErrorsExpected {
public:
    CompilerErrorsExpected();
    ~CompilerErrorsExpected();
    CompilerErrorsExpected(const CompilerErrorsExpected&) = delete;
    CompilerErrorsExpected& operator=(const CompilerErrorsExpected&) = delete;
};
