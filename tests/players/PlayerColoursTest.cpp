#include "players/PlayerColours.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// How an eye sees linear sRGB, by rows. Those that lack a kind of cone: Machado, Oliveira and Fernandes, "A
/// Physiologically-based Model for Simulation of Color Vision Deficiency" (2009), severity 1.
struct Eye {
    const char* name;
    glm::dvec3 rows[3];
};

constexpr Eye kUsual{"usual", {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Eye kProtan{
    "protan", {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
constexpr Eye kDeutan{
    "deutan", {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
constexpr Eye kTritan{
    "tritan", {{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}};

glm::dvec3 times(const glm::dvec3 (&rows)[3], const glm::dvec3& v)
{
    return {glm::dot(rows[0], v), glm::dot(rows[1], v), glm::dot(rows[2], v)};
}

double linear(double level)
{
    return level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
}

/// CIE L*a*b* of an sRGB colour under its white, D65, as that eye sees it.
glm::dvec3 labOf(const glm::dvec4& colour, const Eye& eye)
{
    constexpr glm::dvec3 kToXyz[3] = {
        {0.4124564, 0.3575761, 0.1804375}, {0.2126729, 0.7151522, 0.0721750}, {0.0193339, 0.1191920, 0.9503041}};
    constexpr double kKnee = 216.0 / 24389, kSlope = 24389.0 / 27 / 116;
    const glm::dvec3 seen = times(eye.rows, {linear(colour.r), linear(colour.g), linear(colour.b)});
    glm::dvec3 f = times(kToXyz, glm::clamp(seen, 0.0, 1.0)) / glm::dvec3(0.95047, 1, 1.08883);
    for (int i = 0; i < 3; ++i) f[i] = f[i] > kKnee ? std::cbrt(f[i]) : kSlope * f[i] + 16.0 / 116;
    return {116 * f.y - 16, 500 * (f.x - f.y), 200 * (f.y - f.z)};
}

/// CIE76.
double difference(const PlayerColours& colours, std::size_t one, std::size_t other, const Eye& eye)
{
    return glm::distance(labOf(colours.at(one), eye), labOf(colours.at(other), eye));
}

TEST(PlayerColours, ThatAreSafeAreToldApartByColourBlindPeopleToo)
{
    constexpr std::size_t kGreen = 1, kYellow = 3;
    EXPECT_NEAR(difference(kDefaultColours, kGreen, kYellow, kUsual), 57, 0.5);
    EXPECT_NEAR(difference(kDefaultColours, kGreen, kYellow, kProtan), 6, 0.5) << "why there are others";

    for (const Eye& eye : {kUsual, kProtan, kDeutan, kTritan})
        for (std::size_t one = 0; one < kSafeColours.size(); ++one)
            for (std::size_t other = 0; other < one; ++other)
                EXPECT_GE(difference(kSafeColours, one, other, eye), 20) << eye.name << ' ' << other << ' ' << one;
}

} // namespace
