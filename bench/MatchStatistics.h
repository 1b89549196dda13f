#pragma once

#include <glm/glm.hpp>

#include <deque>
#include <vector>

class Match;

/// Watches a match from outside, pass by pass, and counts what went on.
class MatchStatistics {
public:
    explicit MatchStatistics(const Match& watched) : match(watched) {}

    void observe(); ///< after each pass

    int getShots() const { return shots; }
    int getDeaths() const { return deaths; } ///< by shots

    /// All of it, for passes of 1/120 s: "shots 880 hits 600 deaths 115 falls 0 upside_down_percent 1.5 stuck_percent
    /// 4.4"
    void print() const;

private:
    struct Car {
        std::deque<glm::vec3> trail; ///< of the last three simulated seconds
        int health = 100;
        int deaths = 0;
        float lowest = 0; ///< height in the pass before
    };

    const Match& match;
    std::vector<Car> cars;
    long carPasses = 0, upsideDown = 0, stuck = 0;
    int shots = 0, hits = 0, deaths = 0, falls = 0;
};
