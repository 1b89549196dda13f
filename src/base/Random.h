#pragma once

// The match's random numbers: those that std::rand() would give by the same seed, out of a row of their own. Sound
// servers and drivers draw from that of std::rand(), and sow it, in the middle of a match.

/// Begin the row anew. Unsown, it is that of seed 1.
void sowRandom(unsigned seed);

/// Return the next number, from 0 to 2147483647.
int drawRandom();
