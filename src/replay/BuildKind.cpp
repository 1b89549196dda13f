#include "replay/BuildKind.h"

#include "base/Fingerprint.h"

#include <PxPhysicsVersion.h>

#include <cmath>
#include <iomanip>
#include <sstream>

namespace {

/// The functions that a match goes through, over the arguments that it has: C libraries, and the same one on processors
/// with and without fused multiply-add, differ in the last bit of some.
void addFunctions(Fingerprint& sum)
{
    constexpr int kArguments = 20'000;
    const auto add = [&sum](auto value) { sum.add(&value, sizeof value); };
    for (int i = -kArguments; i <= kArguments; ++i) {
        const float part = static_cast<float>(i) / static_cast<float>(kArguments), angle = 7 * part;
        for (const float value : {std::acos(part), std::asin(part), std::atan(angle), std::atan2(part, angle + 1),
                 std::sin(angle), std::cos(angle), std::tan(angle), std::exp(angle), std::pow(part + 2, angle),
                 std::fmod(angle, 0.3f), std::sqrt(part + 1)})
            add(value);
        const double fine = angle;
        for (const double value : {std::sin(fine), std::cos(fine), std::atan2(fine, fine + 1)}) add(value);
    }
}

/// Whether the compiler contracts, reorders or widens.
void addArithmetic(Fingerprint& sum)
{
    constexpr int kSteps = 1000;
    volatile float seed = 0.1f;
    float value = seed;
    for (int i = 0; i < kSteps; ++i) {
        value = value * 3.7f * (1.0f - value) + seed * value / 7.0f - seed * value / 7.0f;
        sum.add(&value, sizeof value);
    }
}

} // namespace

std::string kindOfBuild()
{
    Fingerprint sum;
    addFunctions(sum);
    addArithmetic(sum);
    std::ostringstream line;
#ifdef __clang__
    line << __VERSION__;
#else
    line << "GCC " __VERSION__;
#endif
    line << ", SDK " << PX_PHYSICS_VERSION_MAJOR << '.' << PX_PHYSICS_VERSION_MINOR << '.' << PX_PHYSICS_VERSION_BUGFIX
         << ", arithmetic " << std::hex << std::setfill('0') << std::setw(16) << sum.value();
    return line.str();
}
