#pragma once

#include "assets/Model.h"

class Camera;

/// A textured model that sets its uniforms itself: the library's mesh "Hellknight" with the texture
/// "Hellknight_Diffuse". For trying out models; the game's scene holds none.
class HellknightModel final : public Model {
public:
    HellknightModel();

    std::string getName() const override { return "Hellknight"; }

    /// Set "view", "projection", "normalMatrix", "tex" (on unit 0) and "model" for that camera; the program is current.
    virtual void setUniforms(Camera* camera);

    /// Make the program current and set its uniforms.
    virtual void bind(Camera* camera);
};
