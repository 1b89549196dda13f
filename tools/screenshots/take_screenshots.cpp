// Writes the pictures that the documents show and the tests compare. Run by tools/screenshots.sh:
//     take_screenshots FOLDER [NAME]
// NAME: that picture only. A file beside them, driver.txt, says what drew them.

#include "testing/PngFile.h"
#include "testing/Snapshots.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <string>

namespace {

/// Return the exit status.
int write(const Snapshot& snapshot, const std::string& folder)
try {
    const std::optional<TakenPicture> taken = take(snapshot);
    if (!taken) return EXIT_FAILURE;
    writePng(folder + "/" + snapshot.name + ".png", taken->picture);
    std::ofstream(folder + "/driver.txt") << taken->driver << "\n";
    return EXIT_SUCCESS;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: take_screenshots FOLDER [NAME]\n");
        return EXIT_FAILURE;
    }
    for (const Snapshot& snapshot : snapshots()) {
        if (argc > 2 && std::string(argv[2]) != snapshot.name) continue;
        const pid_t child = fork();
        if (child == 0) std::_Exit(write(snapshot, argv[1]));
        int status = 0;
        waitpid(child, &status, 0);
        if (status != 0) {
            std::fprintf(stderr, "%s was not taken\n", snapshot.name);
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
