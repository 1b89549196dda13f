#pragma once

#include "assets/MeshGeometry.h"
#include "assets/Model.h"
#include "assets/Uniform_AttachableTransformation.h"
#include "gpu/Uniform_Texture.h"
#include "scene/RangeCuller.h"

class Mesh;
class Terrain;

/// The ground as it is seen: the terrain's grid, drawn as patches of grass and dirt. Owned by the game; made after the assets are loaded.
class TerrainModel final : public Model {
public:
    explicit TerrainModel(const Terrain& terrain);

    void draw() override; ///< the patches that the camera being drawn may see

private:
    explicit TerrainModel(const Mesh& mesh);

    MeshGeometry geometry;
    RangeCuller culler;
    Uniform_AttachableTransformation transformation;
    Uniform_Texture grass;
    Uniform_Texture dirt;
};
