#pragma once

#include "assets/CelModel.h"

#include <glm/glm.hpp>

/// The drawn ball of a shot, in the shooter's colour. Owned by whoever shows the shot. All balls share one sphere, made
/// by the first; each has its own vertex array, released with it.
class BallModel final : public CelModel {
public:
    explicit BallModel(const glm::vec4& color);
    ~BallModel();
    BallModel(const BallModel&) = delete;
    BallModel& operator=(const BallModel&) = delete;
};
