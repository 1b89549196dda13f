#pragma once

#include "app/FreeFlight.h"
#include "app/OverviewViewport.h"
#include "base/IGameState.h"

class AppWindow;
class QKD_Game;

/// A free flight through the running world by keyboard and mouse: the cars roll on, but nobody drives, and hits count
/// only when the match goes on. Entered from the match and left back to it. Owned by the game.
class DebugGamestate final : public IGameState {
public:
    /// Add the node "CameraNode" to the game's scene.
    DebugGamestate(const std::string& stateName, QKD_Game& game);

    void enter() override;
    void layOut() override;
    void leave() override;
    void update() override;
    void renderCamera(Camera*) override {}

private:
    FreeFlight::Mouse mouse() const;

    QKD_Game& game;
    AppWindow& window;
    Node* cameraNode;
    OverviewViewport view;
    FreeFlight flight;
};
