#pragma once

#include "match/MatchWorld.h"

/// A whole match without a window, and its passes as the main loop makes them, but for the tick of the frame timer. The
/// physics world goes with it, so that another match may follow in the same process. Needs the data folder as the
/// working directory.
class BareMatch {
public:
    explicit BareMatch(IPresentation& presentation) : world(presentation) {} ///< borrowed

    MatchWorld& getWorld() { return world; }
    Match& getMatch() { return world.getMatch(); }
    SceneGraph& getScene() { return world.getScene(); }

    /// Make the half of a pass in which bodies move: after whatever the pass does with the match itself.
    void step()
    {
        getMatch().stepPhysics();
        getScene().update();
    }

private:
    /// Takes the physics world down after the match, whose shots need it as they go.
    struct PhysicsEnd {
        ~PhysicsEnd();
    };

    PhysicsEnd end;
    MatchWorld world;
};
