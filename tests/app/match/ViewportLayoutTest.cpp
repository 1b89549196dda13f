#include "app/match/ViewportLayout.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

using Pixels = std::array<int, 4>; // x, y, width, height

Pixels cell(int players, int index, int width, int height)
{
    const Viewport::Rect rect = viewportCell(players, index, width, height);
    return {rect.x, rect.y, rect.width, rect.height};
}

const std::vector<Pixels> kQuarters{{0, 384, 512, 384}, {512, 384, 512, 384}, {0, 0, 512, 384}, {512, 0, 512, 384}};
const std::vector<Pixels> kSixths{{0, 384, 340, 384}, {340, 384, 340, 384}, {681, 384, 340, 384},
    {0, 0, 340, 384}, {340, 0, 340, 384}, {681, 0, 340, 384}};

} // namespace

TEST(ViewportLayout, SplitsTheWindowByTheNumberOfPlayers)
{
    const std::vector<Pixels> cells[] = {
        {{0, 0, 1024, 768}},
        {{0, 0, 512, 768}, {512, 0, 512, 768}},
        kQuarters, kQuarters, kSixths, kSixths, // with an odd number the cell after the players' is free
    };
    for (int players = 1; players <= kMaxHumanPlayers; ++players) {
        const std::vector<Pixels>& expected = cells[players - 1];
        for (int i = 0; i < static_cast<int>(expected.size()); ++i) {
            EXPECT_EQ(cell(players, i, 1024, 768), expected[static_cast<std::size_t>(i)]) << players << " players, cell " << i;
        }
    }
}

TEST(ViewportLayout, TruncatesToWholePixels)
{
    EXPECT_EQ(cell(2, 1, 801, 601), (Pixels{400, 0, 400, 601}));
    EXPECT_EQ(cell(4, 0, 801, 601), (Pixels{0, 300, 400, 300}));
    EXPECT_EQ(cell(6, 2, 801, 601), (Pixels{533, 300, 266, 300}));
}
