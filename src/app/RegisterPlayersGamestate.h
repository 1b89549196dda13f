#pragma once

#include "app/StateView.h"
#include "app/base/IGameState.h"
#include "app/match/PlayerRegistration.h"
#include "scene/Node.h"

class Core;
class QKD_Game;

/// The first screen: people join with their devices, seen from high above the field, until the match starts. Owned by the game.
class RegisterPlayersGamestate : public IGameState {
public:
    /// The scene graph must be in the renderer's hands by now. Adds the node "PanoramaCamera" to it.
    RegisterPlayersGamestate(const std::string& name, QKD_Game& game);

    void enter() override;
    void leave() override;
    void update() override;
    void renderCamera(Camera*) override {}
    void drawText(TextRenderer* text) override;

private:
    Core& core;
    QKD_Game& game;
    Node panoramaNode;
    StateView view;
    PlayerRegistration registration;
};
