// C libraries differ in the last bit of these functions (glibc rounds them correctly from 2.41 on), and cars that meet
// turn the last bit into another match. A program that is linked with these, the physics SDK within it too, plays the
// same match with every C library, and can be held to one set of pictures.
#include <cmath>

namespace {

/// Round to nearest what is right to far more digits than a float has.
float rounded(double value)
{
    return static_cast<float>(value);
}

} // namespace

extern "C" {
float acosf(float x) noexcept
{
    return rounded(std::acos(static_cast<double>(x)));
}

float asinf(float x) noexcept
{
    return rounded(std::asin(static_cast<double>(x)));
}

float atanf(float x) noexcept
{
    return rounded(std::atan(static_cast<double>(x)));
}

float atan2f(float y, float x) noexcept
{
    return rounded(std::atan2(static_cast<double>(y), static_cast<double>(x)));
}

float tanf(float x) noexcept
{
    return rounded(std::tan(static_cast<double>(x)));
}
}
