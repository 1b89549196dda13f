#pragma once

#include "app/Outside.h"
#include "replay/Source.h"
#include "replay/WorldSample.h"

/// The outside of a game that is told again: what the recording holds.
class ReplayedPlay : public Outside {
public:
    explicit ReplayedPlay(Source& ownSource) : source(ownSource) {} ///< borrowed

    InputDevices makeDevices(const ControlOptions&) override { return source.makeDevices(); }
    AppWindow::Position readMouse(const AppWindow&) override { return source.getMouse(); }
    void passBegins(QKD_Game& game) override; ///< enter the state that the pass began in
    void passEnds(QKD_Game& game) override;   ///< compare the world, and log the first difference

private:
    Source& source;
    Comparison comparison;
};
