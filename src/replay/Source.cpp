#include "replay/Source.h"

#include "base/Logger.h"
#include "base/Random.h"
#include "replay/Identity.h"

#include <cstdlib>
#include <iostream>

/// Says what a device said.
class Source::Device : public InputDevice {
public:
    explicit Device(const DeviceState& ownState) : state(ownState) {}

    bool isPressed(int button) override { return (state.buttons & DeviceState::bitOf(button)) != 0; }
    float getAxis(int axis) override
    {
        return axis >= 0 && axis < DeviceState::kAxisCount ? state.axes[static_cast<std::size_t>(axis)] : 0.0f;
    }
    void vibrate(int, std::uint16_t, std::uint16_t) override {}
    void update() override {}
    bool isConnected() override { return state.connected; }
    std::string getName() const override { return state.name; }
    bool isStartPressed() override { return (state.buttons & DeviceState::kStartBit) != 0; }
    bool isBackPressed() override { return (state.buttons & DeviceState::kBackBit) != 0; }

private:
    const DeviceState& state;
};

/// Half a millisecond more: the frame timer takes whole ones, and none must be lost to rounding.
double Source::Clock::now()
{
    return (milliseconds + 0.5) / 1000;
}

bool Source::Keys::isDown(int key)
{
    const auto found = answers.find(key);
    if (found == answers.end()) return false;
    Answers& given = found->second;
    if (given.left > 1) {
        given.last = (given.left & 1) != 0;
        given.left >>= 1;
    }
    return given.last;
}

Source::~Source()
{
    if (&keyboard() == &keys) {
        setKeyboard(nullptr);
        FrameTimer::getInstance()->setClock(nullptr);
    }
}

std::string Source::open()
{
    const std::string fault = reader.open();
    return fault.empty() ? findObstacle(reader.getHeader()) : fault;
}

void Source::begin()
{
    FrameTimer* const timer = FrameTimer::getInstance();
    clock.milliseconds = reader.getHeader().start_ms();
    timer->setClock(&clock);
    timer->tick();
    setKeyboard(&keys);
    sowRandom(reader.getHeader().seed());

    reader.rewind();
    devices = {};
    mouse = {};
    passNumber = 0;
    isFirstRead = readPass(); // who joins at once has the name that it got there
}

bool Source::nextPass()
{
    if (!isFirstRead && !readPass()) return false;
    isFirstRead = false;
    ++passNumber;
    clock.milliseconds += static_cast<int>(pass.length_ms());
    return true;
}

bool Source::readPass()
{
    if (!reader.next(pass)) return false;
    for (const recording::Device& change : pass.devices()) devices.at(change.number()).apply(change);
    keys.answers.clear();
    for (const recording::Key& key : pass.keys()) keys.answers[key.code()] = {key.answers(), false};
    if (pass.has_mouse_x()) mouse.x = pass.mouse_x();
    if (pass.has_mouse_y()) mouse.y = pass.mouse_y();
    return true;
}

InputDevices Source::makeDevices()
{
    InputDevices made;
    for (std::size_t i = 0; i < made.size(); ++i) made[i] = std::make_unique<Device>(devices[i]);
    return made;
}

bool openForTelling(Source& source, const std::filesystem::path& file)
{
    const std::string fault = source.open();
    if (!fault.empty()) {
        std::cerr << "quackdash: " << file.string() << ": " << fault << '\n';
        return false;
    }
    const RecordingReader& recording = source.getRecording();
    if (recording.isCut())
        logLine(1) << file.string() << " lacks its end, after pass " << recording.getPassCount() << std::endl;
    if (!isFromThisProgram(recording.getHeader()))
        logLine(1) << file.string() << " is from another build of the game (" << recording.getHeader().compiler()
                   << "): its match may go another way" << std::endl;
    return true;
}
