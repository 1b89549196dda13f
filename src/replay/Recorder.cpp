#include "replay/Recorder.h"

#include "base/FrameTimer.h"
#include "replay/RecordingLimits.h"
#include "replay/WorldSample.h"

#include <utility>

/// Hands a device's answers on and writes them down.
class Recorder::Device : public InputDevice {
public:
    Device(std::unique_ptr<InputDevice> ownDevice, DeviceState& ownState, Keys& gameKeys)
        : device(std::move(ownDevice)), state(ownState), keys(gameKeys)
    {
    }

    bool isPressed(int button) override
    {
        const Asking asking(keys);
        return note(DeviceState::bitOf(button), device->isPressed(button));
    }
    float getAxis(int axis) override
    {
        const Asking asking(keys);
        const float value = device->getAxis(axis);
        if (axis >= 0 && axis < DeviceState::kAxisCount) state.axes[static_cast<std::size_t>(axis)] = value;
        return value;
    }
    void vibrate(int milliseconds, std::uint16_t leftMotor, std::uint16_t rightMotor) override
    {
        device->vibrate(milliseconds, leftMotor, rightMotor);
    }
    void setJoined() override { device->setJoined(); }
    void setLight(const glm::vec3& colour) override { device->setLight(colour); }
    void update() override
    {
        const Asking asking(keys);
        device->update();
    }
    bool isConnected() override
    {
        const Asking asking(keys);
        state.connected = device->isConnected();
        return state.connected;
    }
    std::string getName() const override
    {
        std::string name = device->getName();
        state.name = name.substr(0, kLongestDeviceName);
        return name;
    }
    bool isStartPressed() override
    {
        const Asking asking(keys);
        return note(DeviceState::kStartBit, device->isStartPressed());
    }
    bool isBackPressed() override
    {
        const Asking asking(keys);
        return note(DeviceState::kBackBit, device->isBackPressed());
    }

private:
    /// As long as it lives, the keyboard is asked by a device.
    struct Asking {
        explicit Asking(Keys& asked) : keys(asked) { ++keys.asking; }
        ~Asking() { --keys.asking; }
        Asking(const Asking&) = delete;
        Asking& operator=(const Asking&) = delete;

        Keys& keys;
    };

    bool note(unsigned bit, bool down)
    {
        state.press(bit, down);
        return down;
    }

    std::unique_ptr<InputDevice> device;
    DeviceState& state;
    Keys& keys;
};

bool Recorder::Keys::isDown(int key)
{
    const bool down = real->isDown(key);
    if (asking > 0 || key < 0 || static_cast<std::size_t>(key) >= kKeyCount) return down;
    Answers& given = answers[static_cast<std::size_t>(key)];
    if (given.count == 0) asked.push_back(key);
    if (given.count < kMostAnswers) given.bits |= (down ? 1U : 0U) << given.count++;
    return down;
}

void Recorder::Keys::install()
{
    if (real) return;
    real = &keyboard();
    setKeyboard(this);
}

void Recorder::Keys::remove()
{
    if (&keyboard() == this) setKeyboard(real);
}

void Recorder::Keys::write(recording::Pass& into)
{
    for (const int key : asked) {
        const Answers given = std::exchange(answers[static_cast<std::size_t>(key)], {});
        if (given.bits == 0) continue;
        recording::Key& message = *into.add_keys();
        message.set_code(key);
        message.set_answers(given.bits | 1U << given.count);
    }
    asked.clear();
}

Recorder::Recorder(const std::filesystem::path& file, const recording::Header& header)
    : writer(file, header), lastTime(header.start_ms())
{
}

Recorder::~Recorder()
{
    keys.remove();
    if (passIsOpen) writePass();
}

InputDevices Recorder::wrap(InputDevices devices)
{
    for (std::size_t i = 0; i < devices.size(); ++i)
        devices[i] = std::make_unique<Device>(std::move(devices[i]), said[i], keys);
    return devices;
}

void Recorder::beginPass(recording::State state)
{
    keys.install();
    if (passIsOpen) writePass();
    passIsOpen = true;
    const int now = static_cast<int>(FrameTimer::getInstance()->getTimeMs());
    pass.set_length_ms(static_cast<std::uint32_t>(now - std::exchange(lastTime, now)));
    pass.set_state(state);
}

void Recorder::endPass(const Match& match)
{
    if (++sampleAge < kSampleInterval) return;
    takeSample(match, *pass.mutable_sample());
    sampleAge = 0;
}

void Recorder::noteMouse(int x, int y)
{
    if (x != std::exchange(mouseX, x)) pass.set_mouse_x(x);
    if (y != std::exchange(mouseY, y)) pass.set_mouse_y(y);
}

void Recorder::writePass()
{
    keys.write(pass);
    for (std::size_t i = 0; i < said.size(); ++i) {
        if (said[i] == written[i]) continue;
        recording::Device& change = *pass.add_devices();
        change.set_number(static_cast<std::uint32_t>(i));
        said[i].writeChange(written[i], change);
        written[i] = said[i];
    }
    writer.write(pass);
    pass.Clear();
}
