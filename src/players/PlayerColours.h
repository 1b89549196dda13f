#pragma once

#include <glm/glm.hpp>

#include <array>

/// Red, green, blue, alpha of the people in a match, in order of joining.
using PlayerColours = std::array<glm::vec4, 6>;

constexpr PlayerColours kDefaultColours{{
    {0.9f, 0.2f, 0.1f, 1},
    {0.2f, 0.9f, 0.1f, 1},
    {0.1f, 0.2f, 0.9f, 1},
    {0.9f, 0.9f, 0.2f, 1},
    {0.2f, 0.9f, 0.9f, 1},
    {0.9f, 0.2f, 0.9f, 1},
}};

/// Told apart by everybody: the same six, moved in lightness until any two differ by 20 (CIEDE2000, and more by CIE76)
/// for people who lack one kind of cone. Of the ones above two differ by 6 for some.
constexpr PlayerColours kSafeColours{{
    {0.753f, 0.145f, 0.067f, 1},
    {0.063f, 0.659f, 0.463f, 1},
    {0.078f, 0.141f, 0.820f, 1},
    {0.898f, 0.902f, 0.204f, 1},
    {0.196f, 0.941f, 1.000f, 1},
    {0.827f, 0.329f, 1.000f, 1},
}};

/// What cars and balls are coloured by.
struct ColourOptions {
    PlayerColours people = kDefaultColours;
};
