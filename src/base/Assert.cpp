#include "base/Assert.h"

#include <cstdio>
#include <cstdlib>

void failAssertion(const char* condition, const char* text, const char* file, int line)
{
    std::fflush(stdout);
    std::fprintf(stderr, "Assertion failed: %s (%s) at %s:%d\n", text, condition, file, line);
    std::abort();
}
