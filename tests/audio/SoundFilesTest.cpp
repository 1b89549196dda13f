#include "audio/Listening.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

namespace fs = std::filesystem;

namespace {

std::string bytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string gameFile(const std::string& name)
{
    return bytesOf(DATA_FOLDER "Audio/" + name);
}

struct BrokenFile {
    const char* what;
    std::function<void(const TemporaryFolder& folder, const std::string& name)> make;
};

class BrokenSoundFiles : public testing::TestWithParam<BrokenFile> {};

TEST_P(BrokenSoundFiles, AreRefusedWithALineThatNamesThem)
{
    const TemporaryFolder folder;
    GetParam().make(folder, "broken.wav");
    for (const bool audible : {true, false}) { // a machine without sound says the same
        SoundOutput output(SoundTarget::Loopback);
        if (audible) {
            EXPECT_EQ(output.create(), kSoundOk);
        }
        EXPECT_EQ(output.init(32), kSoundOk);

        SoundData* sound = nullptr;
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_NE(output.createSound((folder.path() / "broken.wav").string(), sound), kSoundOk);
        const std::string printed = testing::internal::GetCapturedStdout();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        EXPECT_EQ(printed.rfind("ERROR | couldn't open sound file: ", 0), 0u) << printed;
        EXPECT_NE(printed.find("broken.wav ("), std::string::npos) << printed;
        EXPECT_EQ(sound, nullptr);

        SoundChannel channel;
        EXPECT_NE(output.playSound(sound, channel), kSoundOk);
    }
}

INSTANTIATE_TEST_SUITE_P(Table, BrokenSoundFiles,
    testing::Values(BrokenFile{"missing", [](const TemporaryFolder&, const std::string&) {}},
        BrokenFile{"empty", [](const TemporaryFolder& folder, const std::string& name) { folder.write(name, ""); }},
        BrokenFile{"a folder", [](const TemporaryFolder& folder, const std::string& name) { fs::create_directory(folder.path() / name); }},
        BrokenFile{"text", [](const TemporaryFolder& folder, const std::string& name) { folder.write(name, std::string(5000, 'x')); }},
        BrokenFile{"zeros", [](const TemporaryFolder& folder, const std::string& name) { folder.write(name, std::string(5000, '\0')); }},
        BrokenFile{"cut within its header",
            [](const TemporaryFolder& folder, const std::string& name) { folder.write(name, gameFile("bang.wav").substr(0, 30)); }},
        BrokenFile{
            "no samples", [](const TemporaryFolder& folder, const std::string& name) { writeWave((folder.path() / name).string(), {}); }},
        BrokenFile{"six channels", [](const TemporaryFolder& folder, const std::string& name) {
                       writeWave((folder.path() / name).string(), std::vector<float>(600), 6);
                   }}));

struct CutFile {
    const char* name;
    int goneAfter; ///< seconds within which what is left has ended
};

class CutSoundFiles : public testing::TestWithParam<CutFile> {};

TEST_P(CutSoundFiles, PlayWhatIsLeftOfThem)
{
    const TemporaryFolder folder;
    const std::string whole = gameFile(GetParam().name);
    const std::string path = folder.write(GetParam().name, whole.substr(0, whole.size() / 10));
    SoundOutput output(SoundTarget::Loopback);
    EXPECT_EQ(output.create(), kSoundOk);
    EXPECT_EQ(output.init(32), kSoundOk);

    SoundData* sound = nullptr;
    SoundChannel channel;
    ASSERT_EQ(output.createSound(path, sound), kSoundOk);
    EXPECT_EQ(output.setMode(sound, SoundMode::LoopNormal), kSoundOk);
    EXPECT_EQ(output.playSound(sound, channel), kSoundOk);
    listen(output, GetParam().goneAfter * kRate);
    EXPECT_GT(listen(output, kRate).peak(), 0.01f) << "it does not loop";
}

INSTANTIATE_TEST_SUITE_P(Table, CutSoundFiles, testing::Values(CutFile{"engine.wav", 2}, CutFile{"quackdash.mp3", 20}));

TEST(SoundFilesTest, AMusicFileThatVanishesBeforeItIsPlayedFailsToPlay)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("music.mp3", gameFile("quackdash.mp3"));
    SoundOutput output(SoundTarget::Loopback);
    EXPECT_EQ(output.create(), kSoundOk);
    EXPECT_EQ(output.init(32), kSoundOk);
    SoundData* sound = nullptr;
    ASSERT_EQ(output.createSound(path, sound), kSoundOk);
    fs::remove(path);
    SoundChannel channel;
    EXPECT_NE(output.playSound(sound, channel), kSoundOk);
    EXPECT_EQ(output.update(), kSoundOk);
}

} // namespace
