#include "GameSession.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

namespace fs = std::filesystem;

namespace {

enum class Spoiling { Removed, Empty, Truncated, Garbage };

const char* nameOf(Spoiling spoiling)
{
    constexpr const char* kNames[] = {"removed", "empty", "cut in half", "garbage"};
    return kNames[static_cast<int>(spoiling)];
}

void spoil(const fs::path& file, Spoiling spoiling)
{
    if (spoiling == Spoiling::Removed) {
        fs::remove(file);
    } else if (spoiling == Spoiling::Empty) {
        fs::resize_file(file, 0);
    } else if (spoiling == Spoiling::Truncated) {
        fs::resize_file(file, fs::file_size(file) / 2);
    } else {
        std::ofstream out(file, std::ios::binary);
        unsigned state = 12345; // a fixed sequence: the same garbage in every run
        for (int i = 0; i < 5000; ++i) out.put(static_cast<char>((state = state * 1103515245u + 12345u) >> 16));
    }
}

/// Every file that the game loads. A batch is spoiled together: its files do not hide one another's faults.
std::vector<std::vector<std::string>> manifest()
{
    std::vector<std::vector<std::string>> batches{{"Models/duck.dae", "Models/partyhat.dae", "Models/camera.dae"},
        {"Textures/map.tga", "Textures/Grass.tga", "Textures/Smoke.tga", "Models/skybox.tga"},
        {"Textures/Dirt.tga", "Textures/font.tga"},
        {"Audio/quackdash.mp3", "Audio/duck.wav", "Audio/bang.wav", "Audio/engine.wav"}};
    std::vector<std::string> descriptions, sources;
    for (const auto& entry : fs::directory_iterator("Shader")) {
        const bool isDescription = entry.path().extension() == ".shader";
        (isDescription ? descriptions : sources).push_back(entry.path().string());
    }
    batches.push_back(descriptions);
    // A load ends at the first stage that cannot be read: only one stage of a program at a time.
    std::map<std::string, std::vector<std::string>> byStage;
    for (const std::string& source : sources) byStage[fs::path(source).extension()].push_back(source);
    for (const auto& [stage, files] : byStage) batches.push_back(files);
    return batches;
}

/// Whether cutting the file leaves it bad at all: half of a description may be a whole shorter one, half of a shader
/// may compile, half of a sound is a shorter one.
bool mustBeReported(const std::string& file, Spoiling spoiling)
{
    const bool isDescription = fs::path(file).extension() == ".shader";
    if (isDescription) return spoiling == Spoiling::Removed || spoiling == Spoiling::Garbage;
    if (fs::path(file).parent_path() == "Audio") return spoiling != Spoiling::Truncated;
    return true;
}

bool complainsAbout(const std::string& file, const std::string& log)
{
    std::istringstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        const bool isComplaint = line.starts_with("ERROR | ") || line.starts_with("WARNING | ");
        if (isComplaint && line.find(file) != std::string::npos) return true;
    }
    return false;
}

class SpoiledData : public testing::TestWithParam<Spoiling> {};

TEST_P(SpoiledData, IsNamedInTheLogAndTheGameGoesOn)
{
    std::size_t batchCount = 0;
    for (std::size_t batch = 0; batch == 0 || batch < batchCount; ++batch) {
        GameSession game;
        const auto batches = manifest();
        batchCount = batches.size();
        for (const std::string& file : batches[batch]) spoil(file, GetParam());
        SCOPED_TRACE(std::string(nameOf(GetParam())) + ": " + batches[batch].front() + " and its like");

        game.launch();
        ASSERT_TRUE(game.waitForLog("Enter RegisterPlayersGamestate", 1, 60)) << game.log();
        ASSERT_TRUE(game.screen().waitForWindow("Quackdash", 10));
        ASSERT_TRUE(game.startMatch()) << game.log();
        const int linesAtStart = game.countInLog("\n");
        game.screen().pressKey("Up");
        game.tap("k");
        game.screen().releaseKey("Up");
        EXPECT_EQ(game.quit(), 0) << game.log();

        const std::string log = game.log();
        for (const std::string& file : batches[batch]) {
            if (!mustBeReported(file, GetParam())) continue;
            // Half a shader may still compile: then its program does not link, and the description's name stands for
            // it.
            const fs::path program = fs::path(file).replace_extension(".shader");
            EXPECT_TRUE(complainsAbout(file, log) || complainsAbout(program.string(), log))
                << file << " is not named:\n"
                << log;
        }
        // The driver's compiler may say what it thinks of a spoiled shader; nothing may be drawn wrongly because of it.
        EXPECT_EQ(game.countInLog("OpenGL Error:"), game.countInLog("[Source = Shader Compiler,")) << log;
        EXPECT_LT(game.countInLog("\n") - linesAtStart, 30) << "a line per frame:\n" << log;
    }
}

INSTANTIATE_TEST_SUITE_P(Manifest, SpoiledData,
    testing::Values(Spoiling::Removed, Spoiling::Empty, Spoiling::Truncated, Spoiling::Garbage));

} // namespace
