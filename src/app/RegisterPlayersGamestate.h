#pragma once

#include "app/GameOptions.h"
#include "app/HelpText.h"
#include "app/OverviewViewport.h"
#include "base/IGameState.h"
#include "match/PlayerRegistration.h"
#include "render/TextRenderer.h"

#include <vector>

class QKD_Game;

/// The first screen: people join with their devices, seen from high above the field, until the match starts. Owned by
/// the game.
class RegisterPlayersGamestate final : public IGameState {
public:
    /// Add the node "PanoramaCamera" to the game's scene. With a hint, the screen says how to join until somebody has.
    RegisterPlayersGamestate(const std::string& stateName, QKD_Game& game, const GameOptions& options);

    /// Have those join who need not press anything; with start.atOnce, go on to the match, unless (with a log line) too
    /// few take part. Once, when world and sounds are there.
    void admit(const StartOptions& start);

    void enter() override;
    void layOut() override;
    void leave() override;
    void update() override;
    void renderCamera(Camera*) override {}
    void drawText(TextRenderer* text) override;

private:
    QKD_Game& game;
    OverviewViewport view;
    PlayerRegistration registration;
    const std::vector<TextLine> help;
    std::vector<TextLine> hint; // empty for none
};
