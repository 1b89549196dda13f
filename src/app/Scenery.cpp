#include "app/Scenery.h"

#include "assets/Library.h"
#include "match/Hats.h"
#include "physics/PhysicNode.h"
#include "physics/Terrain.h"
#include "scene/SceneGraph.h"

namespace {

// Red, green, blue, alpha.
const glm::vec4 kHatColours[Hats::kCount] = {
    {255 / 255.0f, 215 / 255.0f, 0, 1},
    {192 / 255.0f, 192 / 255.0f, 192 / 255.0f, 1},
    {205 / 255.0f, 127 / 255.0f, 50 / 255.0f, 1},
};

} // namespace

Scenery::Sky::Sky() : texture(Library::getInstance()->getTexture("Skybox"), 0)
{
    box.uniforms["tex"] = &texture;
}

void Scenery::addSky()
{
    sky = std::make_unique<Sky>();
    graph.getRoot()->createChild("Skybox")->attach(&sky->box);
}

void Scenery::addGround(const Terrain& ground)
{
    graph.getRoot()->addChild(ground.getNode());
    terrainModel = std::make_unique<TerrainModel>(ground);
    terrainModel->attachTo(*ground.getNode());
}

void Scenery::addHats(const Hats& hats)
{
    for (int place = 0; place < Hats::kCount; ++place) {
        hatModels.push_back(std::make_unique<PartyhatModel>(kHatColours[place]));
        hats.getAnimationNode(place)->attach(hatModels.back().get());
    }
}
