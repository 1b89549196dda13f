#include "input/GamePadSlots.h"

#include <gtest/gtest.h>

namespace {

using Pad = GamePadSlots::Pad;

/// Two pads in slots 1 and 2 are pulled out together, as with a hub, and come back one after the other.
struct Comeback {
    const char* what;
    Pad one, two; // before
    Pad firstBack, secondBack;
    int slotOfFirst;
};

TEST(GamePadSlots, TwinsFindTheirOwnSlotsByWhateverTellsThemApart)
{
    const Comeback rows[] = {
        {"serial numbers", {1, "m", "A", "p1"}, {2, "m", "B", "p2"}, {3, "m", "B", "p1"}, {4, "m", "A", "p2"}, 1},
        {"paths", {1, "m", "", "p1"}, {2, "m", "", "p2"}, {3, "m", "", "p2"}, {4, "m", "", "p1"}, 1},
        {"paths, where all tell the same serial number", {1, "m", "0", "p1"}, {2, "m", "0", "p2"}, {3, "m", "0", "p2"},
            {4, "m", "0", "p1"}, 1},
        {"models, against the paths", {1, "m", "", "p1"}, {2, "n", "", "p2"}, {3, "n", "", "p1"}, {4, "m", "", "p2"},
            1},
        {"nothing: the order", {1, "m", "", ""}, {2, "m", "", ""}, {3, "m", "", ""}, {4, "m", "", ""}, 0}};
    for (const Comeback& row : rows) {
        SCOPED_TRACE(row.what);
        for (const bool together : {false, true}) {
            GamePadSlots slots;
            slots.update({row.one, row.two}, 0);
            slots.update({}, 1000);
            if (!together) slots.update({row.firstBack}, 2000);
            slots.update({row.firstBack, row.secondBack}, 3000);
            EXPECT_EQ(slots.slotOf(row.firstBack.id), row.slotOfFirst);
            EXPECT_EQ(slots.slotOf(row.secondBack.id), 1 - row.slotOfFirst);
        }
    }
}

TEST(GamePadSlots, AnEmptiedSlotIsHeldForItsPadAndThenFree)
{
    GamePadSlots quick;
    quick.update({{1, "m", "", ""}, {2, "m", "", ""}}, 0);
    quick.update({{2, "m", "", ""}, {3, "m", "", ""}}, 10);
    EXPECT_EQ(quick.slotOf(2), 1);
    EXPECT_EQ(quick.slotOf(3), 0) << "back before anybody looked";

    GamePadSlots slots;
    slots.update({{1, "m", "", ""}}, 0);
    slots.update({}, 1000);
    slots.update({{2, "n", "", ""}}, 1000 + GamePadSlots::kHoldMs);
    EXPECT_EQ(slots.slotOf(2), 1) << "held for the first pad; a newcomer sits elsewhere";
    slots.update({{2, "n", "", ""}, {3, "o", "", ""}}, 1001 + GamePadSlots::kHoldMs);
    EXPECT_EQ(slots.slotOf(3), 0);
    slots.update({{2, "n", "", ""}, {3, "o", "", ""}, {4, "m", "", ""}}, 99000);
    EXPECT_EQ(slots.slotOf(4), 2) << "its own slot has another pad by now";
}

} // namespace
