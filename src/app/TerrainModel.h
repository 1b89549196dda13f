#pragma once

#include "assets/MeshGeometry.h"
#include "assets/Model.h"
#include "assets/Uniform_AttachableTransformation.h"
#include "gpu/Uniform_Texture.h"

class Terrain;

/// The ground as it is seen: the terrain's grid, drawn as patches of grass and dirt. Owned by the game; made after the assets are loaded.
class TerrainModel : public Model {
public:
    explicit TerrainModel(const Terrain& terrain);

private:
    MeshGeometry geometry;
    Uniform_AttachableTransformation transformation;
    Uniform_Texture grass;
    Uniform_Texture dirt;
};
