// Tells the recordings of a folder again and has the files beside them hold what this build comes to. Run by
// tools/recordings.sh:
//     hash_recordings FOLDER

#include "platform/DataFolder.h"
#include "testing/OwnProcess.h"
#include "testing/ToldMatch.h"

#include <cstdlib>
#include <iostream>

namespace {

int renew(const std::filesystem::path& recording)
{
    const ToldMatch told = tellAgain(recording);
    std::cout << recording.filename().string() << ": " << told.passes << " passes, " << told.participants
              << " participants, " << told.hits << " hits, " << told.deaths << " deaths, " << told.falls
              << " of them falls, " << told.points << " points, at most " << told.distance << " m from where they were "
              << told.fault << std::endl;
    return told.fault.empty() && renewHashes(recording, told.line) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: hash_recordings FOLDER\n";
        return EXIT_FAILURE;
    }
    const std::filesystem::path folder = std::filesystem::absolute(argv[1]);
    if (!enterDataFolder()) return EXIT_FAILURE;
    bool renewed = true;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".quackdash")
            renewed &= inOwnProcess([&] { return renew(entry.path()); }) == EXIT_SUCCESS;
    return renewed ? EXIT_SUCCESS : EXIT_FAILURE;
}
