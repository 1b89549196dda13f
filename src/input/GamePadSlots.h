#pragma once

#include <array>
#include <string>
#include <vector>

/// Who sits where: gives every plugged-in game-pad one of four slots, and gives a pad that comes back the slot that it
/// had. Knows nothing of hardware. Owned by GamePads; update() whenever pads came or went, and once a pass while one
/// waits.
///
/// A new pad takes the lowest free slot. A slot whose pad was unplugged is free again for others after kHoldMs; until
/// then only its own pad gets it, or, where pads cannot be told apart, one of the same model that is plugged in
/// meanwhile. Other pads wait, in order.
class GamePadSlots {
public:
    static constexpr int kSlotCount = 4;
    static constexpr int kNoPad = -1;
    static constexpr int kNoSlot = -1;
    static constexpr double kHoldMs = 30000; ///< long enough to change a battery

    struct Pad {
        int id = kNoPad;    ///< unique to one stay: a pad that comes back has another
        std::string model;  ///< the same for all pads of a kind
        std::string serial; ///< empty when the pad tells none
        std::string path;   ///< of the system's device; empty when it has none
        std::string name{}; ///< for people
    };

    /// These pads are plugged in now, the longest-known first. nowMs: the frame timer's milliseconds.
    void update(const std::vector<Pad>& plugged, double nowMs);

    /// The pad in a slot (0 to 3), or kNoPad.
    int padIn(int slot) const { return slots[static_cast<std::size_t>(slot)].seated; }

    int slotOf(int id) const; ///< 0 to 3, or kNoSlot
    bool isWaiting(int id) const;
    bool isAnyWaiting() const { return !waiting.empty(); }

private:
    struct Slot {
        int seated = kNoPad;
        Pad last; // who is or was here; id kNoPad: nobody yet
        double emptiedMs = 0;

        bool isFree(double nowMs) const
        {
            return seated == kNoPad && (last.id == kNoPad || nowMs - emptiedMs > kHoldMs);
        }
    };

    void emptyDeserted(const std::vector<Pad>& plugged, double nowMs);
    void giveBack(std::vector<const Pad*>& newcomers);
    void giveFree(const std::vector<Pad>& plugged, double nowMs);
    bool isSeated(int id) const { return slotOf(id) != kNoSlot; }

    std::array<Slot, kSlotCount> slots;
    std::vector<int> waiting; // ids
};
