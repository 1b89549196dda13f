#include "input/GamePadSlots.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using Pad = GamePadSlots::Pad;

TEST(GamePadSlots, TwinsFindTheirOwnSlotsByWhateverTellsThemApart)
{
    // The pads in slots 1 and 2, pulled out together as with a hub; as they come back, and the slot of the first.
    const std::tuple<const char*, Pad, Pad, Pad, Pad, int> rows[] = {
        {"serial numbers", {1, "m", "A", "p1"}, {2, "m", "B", "p2"}, {3, "m", "B", "p1"}, {4, "m", "A", "p2"}, 1},
        {"paths", {1, "m", "", "p1"}, {2, "m", "", "p2"}, {3, "m", "", "p2"}, {4, "m", "", "p1"}, 1},
        {"paths, not serials", {1, "m", "0", "p1"}, {2, "m", "0", "p2"}, {3, "m", "0", "p2"}, {4, "m", "0", "p1"}, 1},
        {"models, not paths", {1, "m", "", "p1"}, {2, "n", "", "p2"}, {3, "n", "", "p1"}, {4, "m", "", "p2"}, 1},
        {"nothing: the order", {1, "m", "", ""}, {2, "m", "", ""}, {3, "m", "", ""}, {4, "m", "", ""}, 0},
    };
    for (const auto& [what, one, two, firstBack, secondBack, slotOfFirst] : rows) {
        for (const auto& [joined, together] : {std::pair{0, 0}, {0, 1}, {2, 0}, {2, 1}}) { // how many joined
            SCOPED_TRACE(testing::Message() << what << ", joined: " << joined << ", together: " << together);
            GamePadSlots slots;
            slots.update({one, two});
            for (int slot = 0; slot < joined; ++slot) slots.setJoined(slot);
            slots.update({});
            if (!together) slots.update({firstBack});
            slots.update({firstBack, secondBack});
            EXPECT_EQ(slots.slotOf(firstBack.id), slotOfFirst);
            EXPECT_EQ(slots.slotOf(secondBack.id), 1 - slotOfFirst);
        }
    }
}

/// Pads are letters, each a model of its own; the capital is the same pad come back.
struct Story {
    const char* what;
    std::string joined;               ///< the slots that people join with after the first step, counted from 1
    std::vector<std::string> plugged; ///< step by step, the longest-known first
    std::vector<std::string> slots;   ///< what is in them then
};

TEST(GamePadSlots, APlayersSlotGetsAPadBeforeOneThatNobodyJoinedWith)
{
    const Story rows[] = {
        {"another for a lost one, which gets a free slot", "2", {"ab", "a", "ac", "acB"}, {"ab", "a-", "ac", "acB"}},
        {"the same within one pass", "1", {"ab", "bc"}, {"ab", "cb"}},
        {"the lowest of two players first", "12", {"abc", "c", "cd", "cde"}, {"abc", "--c", "d-c", "dec"}},
        {"a player's own pad before others", "12", {"abc", "c", "cdA"}, {"abc", "--c", "Adc"}},
        {"a player before the slot that it had", "1", {"ab", "a", "", "B"}, {"ab", "a-", "--", "B-"}},
        {"for a player's slot nobody waits", "3", {"abcde", "abde", "abdeC"}, {"abcd", "abed", "abed"}},
        {"nor for any other", "3", {"abcde", "acde", "acdeB"}, {"abcd", "aecd", "aecd"}},
        {"nobody joined: the slot that it had", "", {"ab", "", "B", "Bc"}, {"ab", "--", "-B", "cB"}},
        {"nobody joined: the lowest slot", "", {"ab", "b", "bc", "bcA"}, {"ab", "-b", "cb", "cbA"}},
    };
    for (const Story& row : rows) {
        GamePadSlots slots;
        for (std::size_t step = 0; step < row.plugged.size(); ++step) {
            SCOPED_TRACE(testing::Message() << row.what << ", step " << step);
            std::vector<Pad> plugged;
            for (const char pad : row.plugged[step])
                plugged.push_back({pad, std::string(1, static_cast<char>(std::tolower(pad))), "", ""});
            slots.update(plugged);
            for (const char slot : step == 0 ? row.joined : "") slots.setJoined(slot - '1');

            std::string shown;
            for (int slot = 0; slot < GamePadSlots::kSlotCount; ++slot)
                shown += slots.padIn(slot) == GamePadSlots::kNoPad ? '-' : static_cast<char>(slots.padIn(slot));
            EXPECT_EQ(shown, row.slots[step] + std::string(4 - row.slots[step].size(), '-'));
        }
    }
}

} // namespace
