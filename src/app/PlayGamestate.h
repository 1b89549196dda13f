#pragma once

#include "app/HelpText.h"
#include "app/OverviewViewport.h"
#include "base/IGameState.h"
#include "input/ControlOptions.h"
#include "platform/ScreenSaver.h"
#include "render/TextRenderer.h"

#include <memory>
#include <vector>

class QKD_Game;

/// The match on the split screen: one viewport for each human player and, where that leaves a cell free, the overview
/// in it. Runs until somebody quits; as long as it does, the screen saver is asked not to blank. Owned by the game.
class PlayGamestate final : public IGameState {
public:
    PlayGamestate(const std::string& stateName, QKD_Game& game, const ControlOptions& controls,
        std::unique_ptr<ScreenSaver> screenSaver);

    void enter() override;
    void layOut() override;
    void leave() override;
    void update() override;
    void renderCamera(Camera* camera) override;
    void drawText(TextRenderer* text) override;

private:
    void collectPlayerViewports();
    void fillFreeCell();

    QKD_Game& game;
    const std::vector<TextLine> help;
    const std::unique_ptr<ScreenSaver> screenSaver;
    std::vector<Viewport*> viewports;
    std::vector<std::unique_ptr<OverviewViewport>>
        overviews; // one more for each entry that leaves a cell free: their node keeps its cameras
};
