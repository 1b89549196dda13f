#include "testing/ChildProcess.h"
#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <vector>

namespace fs = std::filesystem;

namespace {

struct Installation {
    const char* what;
    const char* program;           ///< where the program lies
    std::vector<const char*> data; ///< folders that hold Shader and Textures
    const char* expected;          ///< the folder that it enters; null for none
};

TEST(DataFolder, IsFoundFrom)
{
    const Installation rows[] = {
        {"the working directory first", "usr/games/qd", {"work", "usr/share/games/quackdash"}, "work"},
        {"an installed program's share", "usr/games/qd", {"usr/share/games/quackdash"}, "usr/share/games/quackdash"},
        {"a share folder without games", "opt/bin/qd", {"opt/share/quackdash"}, "opt/share/quackdash"},
        {"beside the program", "unpacked/qd", {"unpacked/data"}, "unpacked/data"},
        {"the source tree of a build", "tree/build/release/qd", {"tree/data"}, "tree/data"},
        {"nowhere", "tree/build/release/qd", {"elsewhere"}, nullptr},
    };
    for (const Installation& row : rows) {
        SCOPED_TRACE(row.what);
        const TemporaryFolder folder;
        const fs::path program = folder.path() / row.program, work = folder.path() / "work";
        fs::create_directories(program.parent_path());
        fs::create_directories(work / "Shader"); // half the data is none
        fs::copy_file(DATA_FOLDER_PROBE, program);
        for (const char* data : row.data)
            for (const char* part : {"Shader", "Textures"}) fs::create_directories(folder.path() / data / part);

        ChildProcess run({{program}, folder.path() / "log.txt", {}, work});
        EXPECT_EQ(run.waitForExit(), row.expected ? 0 : 1);
        const std::string expected =
            row.expected ? (folder.path() / row.expected).string() + "\n" : "ERROR | no data folder found";
        EXPECT_TRUE(run.output().starts_with(expected)) << run.output();
    }
}

} // namespace
