#pragma once

#include "assets/CelModel.h"

/// The drawn ball of a shot, in the shooter's colour. Owned by whoever shows the shot. All balls share one sphere, made
/// by the first.
class BallModel final : public CelModel {
public:
    explicit BallModel(const glm::vec4& color);
};
