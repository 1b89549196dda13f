#include "audio/SoundOptions.h"

#include <cmath>

namespace {
constexpr float kFullVolume = 100.0f;
constexpr float kStepDecibels = 0.5f; // between two volumes
}

float gainOf(int volume)
{
    if (volume <= 0) return 0.0f;
    const float decibels = kStepDecibels * (static_cast<float>(volume) - kFullVolume);
    return std::pow(10.0f, decibels / 20.0f);
}
