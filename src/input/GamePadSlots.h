#pragma once

#include <array>
#include <string>
#include <vector>

/// Which game-pad has which of the four slots. A slot is what a player drives with, whatever pad is in it. Knows
/// nothing of hardware. Owned by GamePads: update() whenever pads came or went, setJoined() once a player drives with a
/// slot.
///
/// A pad that comes takes the slot of a player who has lost his: its own one first, or else the lowest. Only when
/// nobody lacks a pad does it take a slot that nobody joined with: the one that it had, or else the lowest that is
/// empty. Pads that find no slot wait, and take the next one that is empty. Of pads that cannot be told apart, the one
/// that comes first gets the first slot.
class GamePadSlots {
public:
    static constexpr int kSlotCount = 4;
    static constexpr int kNoPad = -1;
    static constexpr int kNoSlot = -1;

    struct Pad {
        int id = kNoPad;    ///< unique to one stay: a pad that comes back has another
        std::string model;  ///< the same for all pads of a kind
        std::string serial; ///< empty when the pad tells none
        std::string path;   ///< of the system's device; empty when it has none
        std::string name{}; ///< for people
    };

    /// Take in which pads are plugged in now, the longest-known first.
    void update(const std::vector<Pad>& plugged);

    /// From now on a player drives with this slot (0 to 3), to the end of the run.
    void setJoined(int slot) { slots[static_cast<std::size_t>(slot)].joined = true; }

    /// Return the id of the pad in a slot (0 to 3), or kNoPad.
    int padIn(int slot) const { return slots[static_cast<std::size_t>(slot)].seated; }

    /// Return the name of the lost pad that the one in this slot stands in for; empty when it does for none.
    const std::string& replacedIn(int slot) const { return slots[static_cast<std::size_t>(slot)].replaced; }

    int slotOf(int id) const; ///< 0 to 3, or kNoSlot
    bool isWaiting(int id) const;

private:
    struct Slot {
        int seated = kNoPad;
        Pad last; // who is or was here; id kNoPad: nobody yet
        std::string replaced;
        bool joined = false;
    };

    void emptyDeserted(const std::vector<Pad>& plugged);
    void seat(const Pad& pad, bool joined, int wanted);
    int likeness(const Slot& slot, const Pad& pad) const;

    std::array<Slot, kSlotCount> slots;
    std::vector<int> waiting; // ids
};
