#include "match/PlayerRegistration.h"

#include "base/Logger.h"
#include "input/KeyboardController.h"
#include "input/XBOXController.h"
#include "match/Match.h"
#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

#include <algorithm>

InputDevices makeInputDevices(const ControlOptions& controls)
{
    constexpr int kPadCount = 4;
    constexpr int kKeyboardLayouts = 2;
    InputDevices devices;
    std::size_t next = 0;
    for (int pad = 1; pad <= kPadCount; ++pad)
        devices[next++] = std::make_unique<XBOXController>(pad, gamePads(), controls);
    for (int layout = 1; layout <= kKeyboardLayouts; ++layout)
        devices[next++] = std::make_unique<KeyboardController>(layout, controls);
    return devices;
}

PlayerRegistration::PlayerRegistration(Match& ownMatch, InputDevices devices, const PlayerNames& names)
    : match(ownMatch)
{
    for (std::size_t i = 0; i < slots.size(); ++i) slots[i] = {.device = std::move(devices[i]), .name = names.at(i)};
}

void PlayerRegistration::update()
{
    readDevices();
    readSpaceBar();
}

void PlayerRegistration::admit(const StartOptions& start)
{
    for (const JoinDevice device : start.join) join(slots.at(static_cast<std::size_t>(device)));
    for (int i = 0; i < start.computerPlayers; ++i) addComputerPlayer();
}

void PlayerRegistration::addComputerPlayer()
{
    if (match.computerPlayerCount() < kMaxComputerPlayers) match.addComputerPlayer();
}

void PlayerRegistration::readSpaceBar()
{
    if (isKeyDown(GLFW_KEY_SPACE) && !spaceHeld) {
        spaceHeld = true;
        addComputerPlayer();
    }
    if (!isKeyDown(GLFW_KEY_SPACE)) spaceHeld = false; // read again: a tap that is over by now leaves nothing held
}

// Every device is asked for both buttons in every pass, whether it has joined or not: a key stays pressed until it is
// asked for, and would fire, or start the match, much later.
void PlayerRegistration::readDevices()
{
    for (Slot& slot : slots) {
        slot.device->update();
        const bool shootPressed = slot.device->isPressed(InputDevice::kShoot);
        slot.startPressed = slot.device->isPressed(InputDevice::kStart);
        if (shootPressed && !slot.registered) join(slot);
    }
}

void PlayerRegistration::join(Slot& slot)
{
    slot.registered = true;
    slot.device->setJoined();
    match.addPlayer(*slot.device, slot.name);
    logLine(2) << "Player registered" << std::endl;
}

bool PlayerRegistration::shouldStart() const
{
    if (match.getActorCount() == kMaxParticipants) return true;
    return mayStart() &&
        std::any_of(slots.begin(), slots.end(), [](const Slot& slot) { return slot.registered && slot.startPressed; });
}

bool PlayerRegistration::mayStart() const
{
    constexpr int kMinParticipants = 2;
    return match.getActorCount() >= kMinParticipants && match.getHumanPlayerCount() > 0;
}
