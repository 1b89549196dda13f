#include "input/GamePadSlots.h"

#include <algorithm>

namespace {

constexpr int kMostAlike = 4;

// From 0 (surely two pads) to kMostAlike. Many pads tell no serial number, or the same one as all their kind; then the
// device's path speaks, which the system hands out anew but mostly in the same order.
int alikeness(const GamePadSlots::Pad& a, const GamePadSlots::Pad& b)
{
    const bool bothTellSerial = !a.serial.empty() && !b.serial.empty();
    if (a.model != b.model || (bothTellSerial && a.serial != b.serial)) return 0;
    return 1 + (bothTellSerial ? 2 : 0) + (!a.path.empty() && a.path == b.path ? 1 : 0);
}

} // namespace

void GamePadSlots::update(const std::vector<Pad>& plugged, double nowMs)
{
    emptyDeserted(plugged, nowMs);

    std::vector<const Pad*> newcomers;
    for (const Pad& pad : plugged) {
        if (!isSeated(pad.id) && !isWaiting(pad.id)) newcomers.push_back(&pad);
    }
    giveBack(newcomers);
    giveFree(plugged, nowMs);

    waiting.clear();
    for (const Pad& pad : plugged) {
        if (!isSeated(pad.id)) waiting.push_back(pad.id);
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

void GamePadSlots::emptyDeserted(const std::vector<Pad>& plugged, double nowMs)
{
    for (Slot& slot : slots) {
        if (slot.seated == kNoPad) continue;
        if (std::any_of(plugged.begin(), plugged.end(), [&](const Pad& pad) { return pad.id == slot.seated; }))
            continue;
        slot.seated = kNoPad;
        slot.emptiedMs = nowMs;
    }
}

// The closest likenesses first, so that of two twins each finds its own slot wherever anything tells them apart. A pad
// that has been waiting is not asked: it cannot be the one that left.
void GamePadSlots::giveBack(std::vector<const Pad*>& newcomers)
{
    for (int wanted = kMostAlike; wanted > 0; --wanted) {
        std::erase_if(newcomers, [&](const Pad* pad) {
            const auto slot = std::find_if(slots.begin(), slots.end(), [&](const Slot& candidate) {
                return candidate.seated == kNoPad && candidate.last.id != kNoPad &&
                    alikeness(candidate.last, *pad) == wanted;
            });
            if (slot == slots.end()) return false;
            slot->seated = pad->id;
            slot->last = *pad;
            return true;
        });
    }
}

void GamePadSlots::giveFree(const std::vector<Pad>& plugged, double nowMs)
{
    for (const Pad& pad : plugged) {
        if (isSeated(pad.id)) continue;
        const auto slot =
            std::find_if(slots.begin(), slots.end(), [&](const Slot& candidate) { return candidate.isFree(nowMs); });
        if (slot == slots.end()) return;
        slot->seated = pad.id;
        slot->last = pad;
    }
}
