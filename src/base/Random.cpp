#include "base/Random.h"

#include <array>
#include <cstdint>
#include <cstdlib>

namespace {

struct Row {
    Row() { initstate_r(1, state.data(), state.size(), &data); }

    alignas(std::int32_t) std::array<char, 128> state{}; // of that size it is std::rand()'s generator
    random_data data{};
};

Row& row()
{
    static Row instance;
    return instance;
}

} // namespace

void sowRandom(unsigned seed)
{
    srandom_r(seed, &row().data);
}

int drawRandom()
{
    std::int32_t number = 0;
    random_r(&row().data, &number);
    return number;
}
