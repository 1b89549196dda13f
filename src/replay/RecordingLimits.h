#pragma once

#include <cstddef>
#include <cstdint>

// What a recording may hold, for its writer and its reader.

constexpr char kRecordingTitle[] = "Quackdash recording 1\n"; // the number is the format's
constexpr std::uint32_t kLongestMessage = 65536;              // bytes
constexpr int kMostPasses = 999'999;                          // more than two hours
constexpr std::uint32_t kLongestPass = 3'600'000;             // milliseconds: of a machine that slept
constexpr std::size_t kLongestDeviceName = 64;                // bytes
constexpr int kSampleInterval = 120;                          // passes
