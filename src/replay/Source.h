#pragma once

#include "base/FrameTimer.h"
#include "match/PlayerRegistration.h"
#include "platform/AppWindow.h"
#include "replay/DeviceState.h"
#include "replay/RecordingReader.h"

#include <array>
#include <map>

/// Plays back what a recording holds: a clock, a keyboard and devices that say what they said then. open(); begin()
/// before the world is made, which takes the places of clock and keyboard and sows the seed; then nextPass() before
/// each pass. begin() may be called again, to start over. Outlives the devices.
class Source {
public:
    explicit Source(const std::filesystem::path& file) : reader(file) {}
    ~Source();
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    /// Return what is wrong with the recording, in a few words; empty when it can be told.
    [[nodiscard]] std::string open();

    /// Likewise, whatever version made it and with what data.
    [[nodiscard]] std::string openFromAnywhere() { return reader.open(); }

    void begin();

    /// Set everything to what it was in the next pass. Return false at the end.
    bool nextPass();

    InputDevices makeDevices();

    const RecordingReader& getRecording() const { return reader; }
    const recording::Pass& getPass() const { return pass; }                            ///< since the first nextPass()
    int getPassNumber() const { return passNumber; }                                   ///< from 1
    int getTime() const { return clock.milliseconds - reader.getHeader().start_ms(); } ///< milliseconds from the begin
    AppWindow::Position getMouse() const { return mouse; }

private:
    class Device;

    struct Clock : IClock {
        double now() override;
        void sleep(double) override {}

        int milliseconds = 0;
    };

    struct Keys : IKeyboard {
        struct Answers {
            unsigned left = 1; // those to come; a 1 ends them
            bool last = false;
        };

        bool isDown(int key) override;
        void poll() override {}

        std::map<int, Answers> answers; // of this pass
    };

    bool readPass();

    RecordingReader reader;
    Clock clock;
    Keys keys;
    std::array<DeviceState, std::tuple_size_v<InputDevices>> devices;
    AppWindow::Position mouse;
    recording::Pass pass;
    bool isFirstRead = false; // its pass has not been played
    int passNumber = 0;
};

/// Open the source, and say of a recording by another program, or of one without its end, that it is one. Return false,
/// with one line on standard error, when it cannot be told.
[[nodiscard]] bool openForTelling(Source& source, const std::filesystem::path& file);
