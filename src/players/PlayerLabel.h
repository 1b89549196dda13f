#pragma once

#include <string>

/// What the screen tells a player about himself.
struct PlayerLabel {
    std::string sign;     ///< as above the car
    std::string standing; ///< place and points
    std::string name;
};
