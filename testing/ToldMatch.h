#pragma once

#include <filesystem>
#include <string>

/// What a recording that was told again comes to, in one process of its own.
struct ToldMatch {
    /// A line of a file of hashes: the kind of build, and a hash of all samples so far at every tenth one and the last.
    std::string line;

    std::string fault; ///< why it could not be told, or the first thing that is not in order; empty: nothing
    int people = 0, participants = 0;
    int passes = 0; ///< that were computed
    int hits = 0, deaths = 0, points = 0;
    int falls = 0;       ///< deaths off the field's edge
    double distance = 0; ///< world units, at most, of a participant from where it was when it was recorded
};

/// Tell a recording again, from whatever version, and go over the books after every pass.
ToldMatch tellAgain(const std::filesystem::path& recording);

/// Return a kind of build's line in the file of hashes beside a recording; empty when it has none. `line` begins with
/// the kind.
std::string findHashes(const std::filesystem::path& recording, const std::string& line);

/// Return where two lines part, in words; empty when they don't.
std::string compareHashes(const std::string& expected, const std::string& actual);

/// Have the file hold that line. Lines of other kinds stay only when this one was there: else they may be of other
/// rules. Return false when the file can't be written.
[[nodiscard]] bool renewHashes(const std::filesystem::path& recording, const std::string& line);
