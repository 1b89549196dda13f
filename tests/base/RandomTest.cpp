#include "base/Random.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

namespace {

TEST(RandomTest, DrawsWhatTheCLibraryWouldWhoeverElseDrawsFromThat)
{
    for (const unsigned seed : {1U, 0U, 77U, 4294967295U}) {
        std::srand(seed);
        std::array<int, 500> expected{};
        for (int& number : expected) number = std::rand();
        if (seed != 1) sowRandom(seed); // that of the start
        for (const int number : expected) {
            ASSERT_EQ(drawRandom(), number) << seed;
            std::srand(9);
        }
    }
}

} // namespace
