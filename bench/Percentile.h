#pragma once

#include <algorithm>
#include <vector>

/// Return the sample below which that part of them lies, 0 to 1: 0.5 is the median. At least one sample.
inline double percentile(std::vector<double> samples, double part)
{
    const auto at = samples.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(samples.size() - 1));
    std::nth_element(samples.begin(), at, samples.end());
    return *at;
}
