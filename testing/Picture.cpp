#include "testing/Picture.h"

#include <cstdlib>

namespace {

constexpr int kVisibleStep = 10; // of 255, in any component
constexpr int kDark = 80;        // of 255, in every component

bool differs(const unsigned char* a, const unsigned char* b)
{
    for (int i = 0; i < 3; ++i) {
        if (std::abs(a[i] - b[i]) > kVisibleStep) return true;
    }
    return false;
}

template <class Test>
int count(const ScreenArea& region, Test test)
{
    int hits = 0;
    for (int y = region.y; y < region.y + region.height; ++y) {
        for (int x = region.x; x < region.x + region.width; ++x) hits += test(x, y) ? 1 : 0;
    }
    return hits;
}

template <class Test>
double share(const ScreenArea& region, Test test)
{
    return static_cast<double>(count(region, test)) / (region.width * region.height);
}

} // namespace

double changedShare(const Picture& before, const Picture& after, const ScreenArea& region)
{
    return share(region, [&](int x, int y) { return differs(before.at(x, y), after.at(x, y)); });
}

double detailShare(const Picture& picture, const ScreenArea& region)
{
    return share(region, [&](int x, int y) { return differs(picture.at(x, y), picture.at(region.x, region.y)); });
}

int darkPixels(const Picture& picture, const ScreenArea& region)
{
    return count(region, [&](int x, int y) {
        const unsigned char* pixel = picture.at(x, y);
        return pixel[0] < kDark && pixel[1] < kDark && pixel[2] < kDark;
    });
}
