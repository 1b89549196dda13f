#pragma once

#include "assets/MeshGeometry.h"
#include "assets/Model.h"
#include "gpu/Uniform_Texture.h"
#include "scene/RangeCuller.h"

class Mesh;
class Node;
class Terrain;

/// The ground as it is seen: the terrain's grid, drawn as patches of grass and dirt that are split near the eye. What
/// is too far away to be split is drawn by a second model, without the tessellator, which costs a software driver as
/// much as the shading. Owned by the game; made after the assets are loaded.
class TerrainModel final : public Model {
public:
    explicit TerrainModel(const Terrain& terrain);

    /// Hang both models on the terrain's node.
    void attachTo(Node& mapNode);

    /// Draw the patches that the camera being drawn may see; all of them when the second model is not drawable.
    void draw() override;

private:
    /// Triangles that are not split; they share the geometry, and their shadow is the patches'.
    class FarGround final : public Model {
    public:
        explicit FarGround(TerrainModel& ground);
        void draw() override;

    private:
        TerrainModel& ground;
    };

    explicit TerrainModel(const Mesh& mesh);
    void setUp(Model& model, const char* programName);
    void draw(const Model& model, float from, float to) const;

    MeshGeometry geometry;
    RangeCuller culler;
    Uniform_Texture grass;
    Uniform_Texture dirt;
    FarGround farGround;
};
