#pragma once

/// Have the running test fail at every GL debug message of type error, at the call that raised it, and at every call
/// that deletes an object, or leaves a program, while no context is current. Needs a current debug context with its
/// entry points loaded; replaces the callback that was there.
void failTestsOnGlErrors();

/// While one lives, messages of the GLSL compiler fail no test: for tests that load spoiled shaders. One at a time.
class CompilerErrorsExpected {
public:
    CompilerErrorsExpected();
    ~CompilerErrorsExpected();
    CompilerErrorsExpected(const CompilerErrorsExpected&) = delete;
    CompilerErrorsExpected& operator=(const CompilerErrorsExpected&) = delete;
};
