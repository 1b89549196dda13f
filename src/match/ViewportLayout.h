#pragma once

#include "scene/Viewport.h"

constexpr int kMaxHumanPlayers = 6;

/// The split screen: the pixel rectangle of one cell of the grid that so many human players share. playerCount 1 to 6,
/// cell from 0 in reading order; with three or five players cell number playerCount is the free one. Window size in
/// pixels.
Viewport::Rect viewportCell(int playerCount, int cell, int windowWidth, int windowHeight);
