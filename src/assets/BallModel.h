#pragma once

#include "assets/CelModel.h"
#include "assets/Uniform_AttachableTransformation.h"
#include "gpu/Uniform_Color.h"

class QKD_Game;

/// The drawn ball of a shot, in the shooter's colour. Owned by the shot, which deletes it. All balls share one sphere,
/// made by the first; each has its own vertex array and uniform sources, released with it.
class BallModel final : public CelModel {
public:
    BallModel(QKD_Game* game, const glm::vec4& color);

    /// The same for any shooter with a colour of its own; players lie above this module.
    template <class Shooter>
    BallModel(QKD_Game* game, Shooter* shooter) : BallModel(game, shooter->getColor())
    {
    }

    ~BallModel();
    BallModel(const BallModel&) = delete;
    BallModel& operator=(const BallModel&) = delete;

    QKD_Game* getOwner() const { return owner; }

private:
    QKD_Game* owner;
    Uniform_AttachableTransformation transformation;
    Uniform_Color colour;
};
