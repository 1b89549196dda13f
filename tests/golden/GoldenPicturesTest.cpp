#include "testing/PngFile.h"
#include "testing/Snapshots.h"

#include <gtest/gtest.h>

#include <algorithm>
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

std::string driverIn(const fs::path& folder)
{
    std::string name;
    std::getline(std::ifstream(folder / "driver.txt"), name);
    return name;
}

class GoldenPictures : public testing::TestWithParam<Snapshot> {};

TEST_P(GoldenPictures, LookAsTheDocumentsShowThem)
{
    const std::string name = GetParam().name;
    fs::create_directories(kFolder);
    const fs::path actualFile = kFolder / (name + ".png"), differenceFile = kFolder / (name + ".difference.png");
    fs::remove(differenceFile);
    ASSERT_TRUE(take(GetParam(), kFolder)) << "no OpenGL 4.3 core context; is there a display?";
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
