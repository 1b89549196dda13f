#include "replay/DeviceState.h"

namespace {

using Message = recording::Device;

struct AxisField {
    bool (Message::*has)() const;
    float (Message::*get)() const;
    void (Message::*set)(float);
};

// Indexed apart from the call: in one expression GCC 12 takes a wrong index under its undefined-behaviour sanitizer.
constexpr std::array<AxisField, DeviceState::kAxisCount> kAxes{{
    {&Message::has_axis_0, &Message::axis_0, &Message::set_axis_0},
    {&Message::has_axis_1, &Message::axis_1, &Message::set_axis_1},
    {&Message::has_axis_2, &Message::axis_2, &Message::set_axis_2},
    {&Message::has_axis_3, &Message::axis_3, &Message::set_axis_3},
}};

} // namespace

void DeviceState::writeChange(const DeviceState& before, Message& change) const
{
    if (connected != before.connected) change.set_connected(connected);
    if (buttons != before.buttons) change.set_buttons(buttons);
    for (std::size_t i = 0; i < axes.size(); ++i) {
        const AxisField& field = kAxes.at(i);
        if (axes.at(i) != before.axes.at(i)) (change.*field.set)(axes.at(i));
    }
    if (name != before.name) change.set_name(name);
}

void DeviceState::apply(const Message& change)
{
    if (change.has_connected()) connected = change.connected();
    if (change.has_buttons()) buttons = change.buttons();
    for (std::size_t i = 0; i < axes.size(); ++i) {
        const AxisField& field = kAxes.at(i);
        if ((change.*field.has)()) axes.at(i) = (change.*field.get)();
    }
    if (change.has_name()) name = change.name();
}
