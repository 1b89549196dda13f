#pragma once

#include "app/TerrainModel.h"
#include "assets/PartyhatModel.h"
#include "gpu/Uniform_Texture.h"
#include "render/Skybox.h"

#include <memory>
#include <vector>

class Hats;
class SceneGraph;
class Terrain;

/// What there is to see besides the participants: the sky, the ground and the leaders' hats. Owned by the game; made,
/// part by part, after the assets are loaded.
class Scenery {
public:
    explicit Scenery(SceneGraph& scene) : graph(scene) {} ///< borrowed

    void addSky();
    void addGround(const Terrain& ground);
    void addHats(const Hats& hats);

private:
    struct Sky {
        Sky();

        Skybox box;
        Uniform_Texture texture;
    };

    SceneGraph& graph;
    std::unique_ptr<Sky> sky;
    std::unique_ptr<TerrainModel> terrainModel;
    std::vector<std::unique_ptr<PartyhatModel>> hatModels; // gold, silver, bronze
};
