#pragma once

#include "match/PlayerRegistration.h"
#include "platform/Keyboard.h"
#include "replay/DeviceState.h"
#include "replay/RecordingWriter.h"

#include <array>
#include <filesystem>
#include <vector>

class Match;

/// Records a match: stands between the game and its devices and keys, and writes down what they say, pass by pass. Made
/// before the frame timer's first pass; takes the keyboard's place with the first beginPass() and gives it back at its
/// end. wrap(), then for each pass beginPass(), and endPass() if it is computed. Outlives the devices.
class Recorder {
public:
    Recorder(const std::filesystem::path& file, const recording::Header& header);
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// Return devices that say what these do, which they own.
    InputDevices wrap(InputDevices devices);

    void beginPass(recording::State state);
    void endPass(const Match& match);

    void noteMouse(int x, int y); ///< pixels
    void mark() { pass.set_mark(true); }

private:
    class Device;

    /// The game's own questions to the keyboard; what devices ask for is recorded with these.
    class Keys : public IKeyboard {
    public:
        bool isDown(int key) override;
        void poll() override { real->poll(); }

        void install();
        void remove();

        /// Put down what was asked in the pass, and forget it.
        void write(recording::Pass& into);

        int asking = 0; // devices that are being asked

    private:
        struct Answers {
            unsigned bits = 0;
            int count = 0;
        };
        static constexpr int kMostAnswers = 24;
        static constexpr std::size_t kKeyCount = 349; // GLFW's

        IKeyboard* real = nullptr;
        std::array<Answers, kKeyCount> answers;
        std::vector<int> asked; // the keys of this pass, each once
    };

    void writePass();

    RecordingWriter writer;
    Keys keys;
    std::array<DeviceState, std::tuple_size_v<InputDevices>> said, written;
    recording::Pass pass;
    bool passIsOpen = false;
    int lastTime;      // milliseconds of the frame timer
    int sampleAge = 0; // passes
    int mouseX = 0, mouseY = 0;
};
