#include "input/GamePadSlots.h"

#include <algorithm>

namespace {
constexpr int kMostAlike = 2;
}

void GamePadSlots::update(const std::vector<Pad>& plugged)
{
    emptyDeserted(plugged);
    // The closest likenesses first, so that of two twins each finds its own slot wherever anything tells them apart.
    for (const bool joined : {true, false})
        for (int wanted = kMostAlike; wanted >= 0; --wanted)
            for (const Pad& pad : plugged) seat(pad, joined, wanted);

    waiting.clear();
    for (const Pad& pad : plugged) {
        if (slotOf(pad.id) == kNoSlot) waiting.push_back(pad.id);
    }
}

int GamePadSlots::slotOf(int id) const
{
    const auto slot =
        std::find_if(slots.begin(), slots.end(), [id](const Slot& candidate) { return candidate.seated == id; });
    return slot == slots.end() ? kNoSlot : static_cast<int>(slot - slots.begin());
}

bool GamePadSlots::isWaiting(int id) const
{
    return std::find(waiting.begin(), waiting.end(), id) != waiting.end();
}

void GamePadSlots::emptyDeserted(const std::vector<Pad>& plugged)
{
    for (Slot& slot : slots) {
        if (std::none_of(plugged.begin(), plugged.end(), [&](const Pad& pad) { return pad.id == slot.seated; }))
            slot.seated = kNoPad;
    }
}

// Put a pad that has no slot into the first empty one, joined or not, whose last pad was as much like it as wanted.
void GamePadSlots::seat(const Pad& pad, bool joined, int wanted)
{
    if (slotOf(pad.id) != kNoSlot) return;
    const auto slot = std::find_if(slots.begin(), slots.end(), [&](const Slot& candidate) {
        return candidate.seated == kNoPad && candidate.joined == joined && likeness(candidate, pad) == wanted;
    });
    if (slot == slots.end()) return;
    slot->replaced = joined && wanted == 0 ? slot->last.name : "";
    slot->seated = pad.id;
    slot->last = pad;
}

// Return from 0 (surely not the pad that was in the slot) to kMostAlike. Many pads tell no serial number, or the same
// one as all their kind; then the device's path speaks, which the system hands out anew but mostly in the same order.
// A pad that has been waiting cannot be the one that left.
int GamePadSlots::likeness(const Slot& slot, const Pad& pad) const
{
    const Pad& last = slot.last;
    const bool bothTellSerial = !last.serial.empty() && !pad.serial.empty();
    if (isWaiting(pad.id) || last.model != pad.model || (bothTellSerial && last.serial != pad.serial)) return 0;
    return !last.path.empty() && last.path == pad.path ? kMostAlike : 1;
}
