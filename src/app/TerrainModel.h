#pragma once

#include "assets/MeshGeometry.h"
#include "assets/Model.h"
#include "gpu/Uniform_Texture.h"
#include "scene/RangeCuller.h"

class Mesh;
class Node;
class Terrain;

/// The ground as it is seen: the terrain's grid, drawn as patches of grass and dirt that are split near the eye. What
/// is too far away to be split is drawn by two more models, without the tessellator, which costs a software driver as
/// much as the shading; one of the two leaves out the look at the shadow map, where no shadow falls. Owned by the game;
/// made after the assets are loaded.
class TerrainModel final : public Model {
public:
    explicit TerrainModel(const Terrain& terrain);

    /// Hang all models on the terrain's node.
    void attachTo(Node& mapNode);

    /// Draw the patches that the camera being drawn may see; all of them when the second model is not drawable.
    void draw() override;

private:
    enum class Light { Shaded, Sunny };

    /// Triangles that are not split; they share the geometry, and their shadow is the patches'.
    class FarGround final : public Model {
    public:
        FarGround(TerrainModel& ground, const char* programName, Light light);
        void draw() override;

    private:
        TerrainModel& ground;
        const Light light;
    };

    explicit TerrainModel(const Mesh& mesh);
    void setUp(Model& model, const char* programName);
    void drawFar(const Model& model, Light light) const;
    Light lightOf(const RangeCuller::Run& run) const;
    std::vector<const RangeCuller::Run*> visible(float from, float to) const;
    void draw(const Model& model, const std::vector<const RangeCuller::Run*>& runs) const;

    MeshGeometry geometry;
    RangeCuller culler;
    const bool shadesItself;
    Uniform_Texture grass;
    Uniform_Texture dirt;
    FarGround farGround;
    FarGround sunnyGround;
};
