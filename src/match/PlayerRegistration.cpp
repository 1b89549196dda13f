#include "match/PlayerRegistration.h"

#include "base/Logger.h"
#include "input/KeyboardController.h"
#include "input/XBOXController.h"
#include "match/MatchRules.h"
#include "platform/Keyboard.h"

#include <GLFW/glfw3.h>

#include <algorithm>

PlayerRegistration::PlayerRegistration(MatchRules& ownMatch) : match(ownMatch)
{
    constexpr int kPadCount = 4;
    constexpr int kKeyboardLayouts = 2;
    std::size_t next = 0;
    for (int pad = 1; pad <= kPadCount; ++pad) slots[next++].device = std::make_unique<XBOXController>(pad);
    for (int layout = 1; layout <= kKeyboardLayouts; ++layout)
        slots[next++].device = std::make_unique<KeyboardController>(layout);
}

void PlayerRegistration::update()
{
    readDevices();
    readSpaceBar();
}

void PlayerRegistration::readSpaceBar()
{
    const bool isDown = isKeyDown(GLFW_KEY_SPACE);
    if (isDown && !spaceHeld && match.getComputerPlayerCount() < kMaxComputerPlayers) match.addComputerPlayer();
    spaceHeld = isDown;
}

void PlayerRegistration::readDevices()
{
    for (Slot& slot : slots) {
        slot.device->update();
        slot.startPressed =
            slot.device->isPressed(InputDevice::kStart); // a key stays pressed until it's asked for: not left for later
        if (slot.registered || !slot.device->isPressed(InputDevice::kShoot)) continue;
        slot.registered = true;
        match.addPlayer(slot.device.get());
        logLine(2) << "Player registered" << std::endl;
    }
}

bool PlayerRegistration::shouldStart() const
{
    constexpr int kMinParticipants = 2;
    const int participants = match.getActorCount();
    if (participants == kMaxParticipants) return true;
    return participants >= kMinParticipants &&
        std::any_of(slots.begin(), slots.end(), [](const Slot& slot) { return slot.registered && slot.startPressed; });
}
