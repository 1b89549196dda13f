#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

struct Installation {
    const char* what;
    const char* program;           ///< where the program lies
    std::vector<const char*> data; ///< folders that hold Shader and Textures
    const char* expected;          ///< the folder that it enters; null for none
};

class DataFolder : public testing::TestWithParam<Installation> {};

struct Outcome {
    std::string output;
    int status;
};

Outcome runIn(const fs::path& folder, const fs::path& program)
{
    Outcome run{"", -1};
    std::FILE* pipe = popen(("cd '" + folder.string() + "' && '" + program.string() + "'").c_str(), "r");
    std::array<char, 256> part;
    while (std::fgets(part.data(), part.size(), pipe)) run.output += part.data();
    run.status = WEXITSTATUS(pclose(pipe));
    return run;
}

TEST_P(DataFolder, IsFoundFrom)
{
    const TemporaryFolder folder;
    const fs::path program = folder.path() / GetParam().program;
    fs::create_directories(program.parent_path());
    fs::copy_file(DATA_FOLDER_PROBE, program);
    fs::create_directories(folder.path() / "work");
    for (const char* data : GetParam().data) {
        fs::create_directories(folder.path() / data / "Shader");
        fs::create_directories(folder.path() / data / "Textures");
    }

    const Outcome run = runIn(folder.path() / "work", program);
    if (GetParam().expected) {
        EXPECT_EQ(run.output, (folder.path() / GetParam().expected).string() + "\n") << GetParam().what;
        EXPECT_EQ(run.status, 0);
    } else {
        EXPECT_EQ(run.output.rfind("ERROR | no data folder found", 0), 0u) << GetParam().what << ": " << run.output;
        EXPECT_EQ(run.status, 1);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, DataFolder, testing::Values(
    Installation{"the working directory before all others", "usr/games/quackdash", {"work", "usr/share/games/quackdash"}, "work"},
    Installation{"an installed program's share folder", "usr/games/quackdash", {"usr/share/games/quackdash"}, "usr/share/games/quackdash"},
    Installation{"a share folder without games", "opt/bin/quackdash", {"opt/share/quackdash"}, "opt/share/quackdash"},
    Installation{"beside the program", "unpacked/quackdash", {"unpacked/data"}, "unpacked/data"},
    Installation{"the source tree of a build", "tree/build/release/quackdash", {"tree/data"}, "tree/data"},
    Installation{"nowhere", "tree/build/release/quackdash", {"elsewhere"}, nullptr}));
// clang-format on

} // namespace
