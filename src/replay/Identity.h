#pragma once

#include "input/ControlOptions.h"
#include "match/StartOptions.h"

#include <recording.pb.h>

#include <string>

// What a recording and the program that tells it again must have in common.

/// Return the header of a recording that begins now, in this program with these data (the working directory): seed, who
/// takes part without pressing anything, and what people drive with.
recording::Header describeThisPlay(unsigned seed, const StartOptions& start, const ControlOptions& controls = {});

/// Return why a recording cannot be told again by this program with these data, in a few words; empty when it can.
std::string findObstacle(const recording::Header& header);

/// Return whether it was made by this very executable: only then nothing may differ.
bool isFromThisProgram(const recording::Header& header);

/// Return who takes part without pressing anything.
StartOptions startOf(const recording::Header& header);

/// Return what people drove with. The header is sound.
ControlOptions controlsOf(const recording::Header& header);

constexpr int kControlWords = 6 * InputDevice::kButtonCount; ///< of all devices
