#pragma once

#include "scene/Viewport.h"

constexpr int kMaxHumanPlayers = 6;

/// Return the pixel rectangle of one cell of the split screen that so many human players share. playerCount 1 to 6,
/// cell from 0 in reading order; with three or five players cell number playerCount is the free one. Window size in
/// pixels.
Viewport::Rect viewportCell(int playerCount, int cell, int windowWidth, int windowHeight);
