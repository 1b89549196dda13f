#pragma once

#include "assets/Model.h"

#include <memory>

class Camera;

/// A textured model that sets its uniforms itself: the library's mesh "Hellknight" with the texture
/// "Hellknight_Diffuse". For trying out models; the game's scene holds none.
class HellknightModel final : public Model {
public:
    HellknightModel();
    ~HellknightModel();

    std::string getName() const override { return "Hellknight"; }

    /// Sets "view", "projection", "normalMatrix", "tex" (on unit 0) and "model" for that camera; the program is
    /// current.
    virtual void setUniforms(Camera* camera);

    /// Makes the program current and sets its uniforms.
    virtual void bind(Camera* camera);

private:
    std::unique_ptr<MeshGeometry> geometry;
};
