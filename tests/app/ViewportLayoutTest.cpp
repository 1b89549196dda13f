#include "app/match/ViewportLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct LayoutRow {
    int players;
    std::vector<Viewport::Rect> cells; // every cell of the grid, the free one included
};

class ViewportLayout : public testing::TestWithParam<LayoutRow> {};

TEST_P(ViewportLayout, CellsArePixelsTruncatedTowardsZero)
{
    for (std::size_t i = 0; i < GetParam().cells.size(); ++i)
        EXPECT_TRUE(viewportCell(GetParam().players, static_cast<int>(i), 1024, 768) == GetParam().cells[i]) << "cell " << i;
}

const std::vector<Viewport::Rect> kQuarters{{0, 384, 512, 384}, {512, 384, 512, 384}, {0, 0, 512, 384}, {512, 0, 512, 384}};
const std::vector<Viewport::Rect> kSixths{
    {0, 384, 340, 384}, {340, 384, 340, 384}, {681, 384, 340, 384}, {0, 0, 340, 384}, {340, 0, 340, 384}, {681, 0, 340, 384}};

INSTANTIATE_TEST_SUITE_P(OneToSixPlayers, ViewportLayout,
    testing::Values(LayoutRow{1, {{0, 0, 1024, 768}}}, LayoutRow{2, {{0, 0, 512, 768}, {512, 0, 512, 768}}}, LayoutRow{3, kQuarters},
        LayoutRow{4, kQuarters}, LayoutRow{5, kSixths}, LayoutRow{6, kSixths}));

} // namespace
