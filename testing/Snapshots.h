#pragma once

#include <span>
#include <string>

/// A picture of the game: who takes part and what is looked at. Everybody starts in a ring around the middle of the
/// field; computers drive all cars for a while, on a stepped clock.
struct Snapshot {
    enum class View {
        kRegistration, ///< the first screen, with its help
        kMatch,
        kHelp,    ///< the match, with its help
        kDebug,   ///< the match, with its nodes and cameras
        kLeader,  ///< the duck that wears the golden hat, close by
        kHorizon, ///< ground and sky from a corner of the field
    };

    const char* name;
    View view;
    int people;
    int participants;
    int passes;           ///< of 1/30 s before the picture
    bool comfort = false; ///< with --comfort, in a wide window and in English
};

/// All of them, as the documents show them and the tests compare them.
std::span<const Snapshot> snapshots();

/// Play the game, with a window, up to the snapshot, and draw it into NAME.png in the folder; driver.txt beside it says
/// what drew it: pictures of different drivers differ a little. Return false when it could not be taken, with a line in
/// the log. In a process of its own: participants cannot leave a match.
bool take(const Snapshot& snapshot, const std::string& folder);
