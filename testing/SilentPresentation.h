#pragma once

#include "players/NoPresentation.h"

#include <utility>
#include <vector>

/// A presentation without a window that remembers what it was asked for.
class SilentPresentation : public NoPresentation {
public:
    void setEmitterPosition(const glm::vec3& position) override { emitterPosition = position; }
    void playSound(const std::string& name, bool, float volume) override { sounds.emplace_back(name, volume); }

    std::vector<std::pair<std::string, float>> sounds; ///< of the last pass: names and volumes
    glm::vec3 emitterPosition{0.0f};                   ///< of whoever smoked last
};
