#pragma once

/// What was handed to the driver so far.
struct GlCounts {
    long draws = 0;   ///< draw calls of any kind, transform feedback included; a multi-draw is one
    long lookUps = 0; ///< glGetUniformLocation
};

/// Count the calls of this process from now on. To be called once, when the entry points are loaded (after the game's
/// start). Works in programs that link the target bench_gl only: its link options lead the calls here.
void countGlCalls();

/// Return the calls counted so far.
GlCounts glCounts();

/// For as long as it lives, GL calls of this thread do nothing and no frame is presented: what a pass then takes is
/// our own code.
///
/// The context is put aside: without a current one the GL library leads every entry point to an empty function, those
/// that nobody thought of included. Queries leave their results as they were, and uniforms have location 0; so objects
/// made meanwhile are no good for drawing later.
class WithoutDriver {
public:
    WithoutDriver();
    ~WithoutDriver();
    WithoutDriver(const WithoutDriver&) = delete;
    WithoutDriver& operator=(const WithoutDriver&) = delete;

private:
    struct GLFWwindow* window; // whose context it was
};
