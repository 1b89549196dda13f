#pragma once

#include <cstdio>
#include <iostream>

/// Keep the game's log from drowning a benchmark's figures. To be called before the first line of the log: it takes
/// its buffer from std::cout once. Figures are printed by std::printf.
inline void muteLog()
{
    std::cout.rdbuf(nullptr);
}

/// What the muted log would have said when TestGame::start() failed.
inline int noDisplay()
{
    std::fputs("no OpenGL 4.3 core context; is there a display?\n", stderr);
    return 1;
}
