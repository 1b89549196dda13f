#pragma once

#include "app/FreeFlight.h"
#include "app/StateView.h"
#include "app/base/IGameState.h"
#include "scene/Node.h"

class Core;
class QKD_Game;

/// A free flight through the running world by keyboard and mouse: cars roll on, but nobody drives and no hit counts. Entered from the
/// match and left back to it. Owned by the game.
class DebugGamestate : public IGameState {
public:
    /// The scene graph must be in the renderer's hands by now. Adds the node "CameraNode" to it.
    DebugGamestate(const std::string& name, QKD_Game& game);

    void enter() override;
    void leave() override;
    void update() override;
    void renderCamera(Camera*) override {}

private:
    Core& core;
    QKD_Game& game;
    Node cameraNode;
    StateView view;
    FreeFlight flight;
};
