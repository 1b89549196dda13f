// Writes the pictures that the documents show and the tests compare. Run by tools/screenshots.sh:
//     take_screenshots FOLDER [NAME]
// NAME: that picture only. A file beside them, driver.txt, says what drew them.

#include "testing/Snapshots.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: take_screenshots FOLDER [NAME]\n");
        return EXIT_FAILURE;
    }
    for (const Snapshot& snapshot : snapshots()) {
        if (argc > 2 && std::string(argv[2]) != snapshot.name) continue;
        if (!take(snapshot, argv[1])) {
            std::fprintf(stderr, "%s was not taken\n", snapshot.name);
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
