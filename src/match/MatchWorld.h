#pragma once

#include "match/HitRecorder.h"
#include "match/Match.h"
#include "scene/SceneGraph.h"

class IPresentation;
class Terrain;

/// A match with what it is played in: the physics world with its ground, and the scene. One at a time in a process, as
/// there is one physics world. Neither needs a window.
class MatchWorld {
public:
    /// Create the physics world, with the ground of "Textures/map.tga", and an empty match. presentation is borrowed.
    explicit MatchWorld(IPresentation& presentation, const PlayerColours& colours = kDefaultColours);

    Match& getMatch() { return match; }
    SceneGraph& getScene() { return scene; }
    Terrain& getGround() { return ground; } ///< its node awaits a place in the scene
    HitRecorder& getHits() { return hits; }

private:
    HitRecorder hits;
    Terrain& ground; // the physics world's
    SceneGraph scene;
    Match match;
};
