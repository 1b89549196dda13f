#include "match/ViewportLayout.h"

namespace {

struct Cell {
    float x, y, width, height; // fractions of the window, from its lower-left corner
};

constexpr Cell kGroups[4][kMaxHumanPlayers] = {
    {
        {0, 0, 1, 1},
    },
    {
        {0, 0, 0.5f, 1},
        {0.5f, 0, 0.5f, 1},
    },
    {
        {0, 0.5f, 0.5f, 0.5f},
        {0.5f, 0.5f, 0.5f, 0.5f},
        {0, 0, 0.5f, 0.5f},
        {0.5f, 0, 0.5f, 0.5f},
    },
    {
        {0, 0.5f, 0.333f, 0.5f},
        {0.333f, 0.5f, 0.333f, 0.5f},
        {0.666f, 0.5f, 0.333f, 0.5f},
        {0, 0, 0.333f, 0.5f},
        {0.333f, 0, 0.333f, 0.5f},
        {0.666f, 0, 0.333f, 0.5f},
    },
};

int pixels(float fraction, int windowSide)
{
    return static_cast<int>(fraction * static_cast<float>(windowSide));
}

} // namespace

Viewport::Rect viewportCell(int playerCount, int cell, int windowWidth, int windowHeight)
{
    const int group = playerCount == 1 ? 0 : (playerCount + 1) / 2;
    const Cell& fractions = kGroups[group][cell];
    return {pixels(fractions.x, windowWidth), pixels(fractions.y, windowHeight), pixels(fractions.width, windowWidth),
        pixels(fractions.height, windowHeight)};
}
