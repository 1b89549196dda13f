#pragma once

#include "app/Outside.h"
#include "replay/Recorder.h"

/// The outside of a game that is recorded: the machine's own things, with a recorder between. Made before the game
/// starts.
class RecordedPlay : public Outside {
public:
    RecordedPlay(const std::filesystem::path& file, const recording::Header& header) : recorder(file, header) {}

    InputDevices makeDevices(const ControlOptions& controls) override
    {
        return recorder.wrap(Outside::makeDevices(controls));
    }
    AppWindow::Position readMouse(const AppWindow& window) override;
    void passBegins(QKD_Game& game) override;
    void passEnds(QKD_Game& game) override;
    void mark() override { recorder.mark(); }

private:
    Recorder recorder;
};
