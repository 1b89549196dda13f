#pragma once

#include <recording.pb.h>

#include <string>

class Match;

// The world of a match at one moment: a hash of all that matters, and figures of each participant to say by how much
// two worlds differ.

/// Put down the world as it is.
void takeSample(const Match& match, recording::Sample& sample);

/// Return the first thing in which two samples differ: the participant, what, by how much. Empty when nothing does.
std::string describeDifference(const recording::Sample& recorded, const recording::Sample& now);

/// Return how far the participants are at most from where they were, in metres.
double greatestDistance(const recording::Sample& recorded, const recording::Sample& now);

/// Compares the worlds of a replay with those of its recording.
class Comparison {
public:
    /// Compare the match after a pass of that number, from 1, with its recording.
    void check(int pass, const recording::Sample& recorded, const Match& match);

    int getChecks() const { return checks; }
    int getDifferent() const { return different; }        ///< of these
    const std::string& getFirst() const { return first; } ///< "pass 240: Player 3: position by 0.52 m"; empty for none
    double getDistance() const { return distance; }       ///< metres, at most, from where a participant was

private:
    recording::Sample now; // keeps its room
    int checks = 0, different = 0;
    std::string first;
    double distance = 0;
};
