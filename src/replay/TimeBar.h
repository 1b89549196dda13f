#pragma once

#include <string>
#include <vector>

/// Where a replay is, as a line of text.
struct TimeBar {
    int time = 0, length = 0; ///< milliseconds
    std::vector<int> marks;   ///< milliseconds
    int speed = 1;            ///< times as fast as it was
    bool paused = false;

    /// Return it in so many characters, as in "> 0:42 [====--!---] 3:10 x4".
    std::string text(std::size_t width) const;
};
