#pragma once

#include "match/StartOptions.h"

#include <filesystem>
#include <functional>

class Match;
class Source;

// Matches without a window, as fast as they go. Both need the data folder as the working directory, print what came of
// the match on standard output, and return the program's exit status.

/// Have computer players play so many passes of 1/120 s; recorded, unless `record` is empty.
int playHeadless(const StartOptions& start, unsigned seed, int passes, const std::filesystem::path& record);

/// Tell an opened recording again and compare. Status 0 when nothing differs, or when another program made it, which
/// can't be held to that; 1 when something does.
int replayHeadless(Source& source);

/// Tell an opened recording again, and show the match after each pass that was computed.
void tellHeadless(Source& source, const std::function<void(const Match&)>& passDone);
