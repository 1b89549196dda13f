#include "testing/PngFile.h"
#include "testing/Snapshots.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

/// How far a picture may lie from its reference, in colour components of 0 to 255.
struct Tolerance {
    double mean;
    int greatest;
};
constexpr Tolerance kSameDriver{0.01, 16}; // the order in which puffs of smoke are drawn is nobody's
constexpr Tolerance kOtherDriver{4, 255};

const fs::path kFolder = fs::current_path() / "golden"; // of what was drawn, and how it differs

class GoldenPictures : public testing::TestWithParam<Snapshot> {
protected:
    /// Draw the snapshot into a file, in a process of its own.
    static bool draw(const Snapshot& snapshot, const fs::path& file)
    {
        const pid_t child = fork();
        if (child == 0) {
            const std::optional<TakenPicture> taken = take(snapshot);
            if (!taken) std::_Exit(EXIT_FAILURE);
            writePng(file, taken->picture);
            std::ofstream(kFolder / "driver.txt") << taken->driver << "\n";
            std::_Exit(EXIT_SUCCESS);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return status == 0;
    }

    static std::string driverIn(const fs::path& folder)
    {
        std::string name;
        std::getline(std::ifstream(folder / "driver.txt"), name);
        return name;
    }
};

TEST_P(GoldenPictures, LookAsTheDocumentsShowThem)
{
    const std::string name = GetParam().name;
    fs::create_directories(kFolder);
    const fs::path actualFile = kFolder / (name + ".png"), differenceFile = kFolder / (name + ".difference.png");
    fs::remove(differenceFile);
    ASSERT_TRUE(draw(GetParam(), actualFile)) << "no OpenGL 4.3 core context; is there a display?";
    const Picture actual = readPng(actualFile), expected = readPng(REFERENCES + name + ".png");
    ASSERT_EQ(actual.pixels.size(), expected.pixels.size());

    Picture difference = actual;
    double sum = 0;
    int greatest = 0;
    for (std::size_t i = 0; i < actual.pixels.size(); ++i) {
        const int step = std::abs(actual.pixels[i] - expected.pixels[i]);
        difference.pixels[i] = static_cast<unsigned char>(std::min(8 * step, 255));
        greatest = std::max(greatest, step);
        sum += step;
    }
    const double mean = sum / static_cast<double>(actual.pixels.size());
    RecordProperty("mean", std::to_string(mean));
    const bool sameDriver = driverIn(kFolder) == driverIn(REFERENCES);
    const Tolerance tolerance = sameDriver ? kSameDriver : kOtherDriver;
    if (mean > tolerance.mean || greatest > tolerance.greatest) writePng(differenceFile, difference);
    EXPECT_LE(mean, tolerance.mean) << "see " << actualFile << " and " << differenceFile;
    EXPECT_LE(greatest, tolerance.greatest) << "see " << actualFile << " and " << differenceFile;
}

INSTANTIATE_TEST_SUITE_P(OfTheGame, GoldenPictures, testing::ValuesIn(snapshots().begin(), snapshots().end()),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
