#pragma once

#include "assets/CelModel.h"

#include <deque>

/// The duck at the wheel: the library's mesh "Duck" in the colour of its player. Nothing is drawn when the mesh is
/// missing. Where it is seen small, the meshes "DuckFar" and "DuckFarthest" take its place, as far as they are there:
/// triangles smaller than pixels cost as much as large ones. The coarsest casts the shadow, whose texels are coarser
/// still.
class DriverModel final : public CelModel {
public:
    explicit DriverModel(const glm::vec4& color);

    std::string getName() const override { return "Driver"; }
    const Model& getShadowShape() const override;

protected:
    void drawShape() override;

private:
    /// The same with fewer triangles, for the same program. Hangs on no node.
    class Coarse final : public Model {
    public:
        Coarse(Shaderprogram* program, const Mesh& mesh, float mostPixels);

        const float pixels; ///< across, up to which it does
    };

    std::deque<Coarse> coarse; // coarsest first
};
