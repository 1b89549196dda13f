#include "Listening.h"
#include "testing/CapturedLog.h"
#include "testing/TemporaryFolder.h"

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

std::string gameFile(const std::string& name)
{
    std::ifstream file(DATA_FOLDER "Audio/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class SoundFilesTest : public testing::Test {
protected:
    SoundFilesTest()
    {
        EXPECT_EQ(output.create(), kSoundOk);
        EXPECT_EQ(output.init(32), kSoundOk);
    }

    TemporaryFolder folder;
    SoundOutput output{SoundTarget::Loopback};
    SoundData* sound = nullptr;
    SoundChannel channel;
};

TEST_F(SoundFilesTest, BrokenOnesAreRefusedWithALineThatNamesThem)
{
    SoundOutput silent(SoundTarget::Loopback); // a machine without sound says the same
    EXPECT_EQ(silent.init(32), kSoundOk);
    folder.write("empty.wav", "");
    folder.write("text.wav", std::string(5000, 'x'));
    folder.write("cut.wav", gameFile("bang.wav").substr(0, 30));
    fs::create_directory(folder.path() / "folder.wav");
    writeWave((folder.path() / "none.wav").string(), {});
    writeWave((folder.path() / "six.wav").string(), std::vector<float>(600), 6);
    for (const char* name : {"missing.wav", "empty.wav", "text.wav", "cut.wav", "folder.wav", "none.wav", "six.wav"}) {
        for (SoundOutput* machine : {&output, &silent}) {
            SCOPED_TRACE(name);
            CapturedLog log;
            testing::internal::CaptureStderr();
            EXPECT_NE(machine->createSound((folder.path() / name).string(), sound), kSoundOk);
            EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
            EXPECT_TRUE(log.text().starts_with("ERROR | couldn't open sound file: ")) << log.text();
            EXPECT_TRUE(log.contains(std::string(name) + " (")) << log.text();
            EXPECT_EQ(sound, nullptr);
            EXPECT_NE(machine->playSound(sound, channel), kSoundOk);
        }
    }
}

TEST_F(SoundFilesTest, OfCutOnesWhatIsLeftIsPlayed)
{
    const std::pair<const char*, int> rows[] = {
        {"engine.wav", 2}, {"quackdash.mp3", 20}}; // seconds within which it has ended
    for (const auto& [name, goneAfter] : rows) {
        const std::string whole = gameFile(name);
        ASSERT_EQ(output.createSound(folder.write(name, whole.substr(0, whole.size() / 10)), sound), kSoundOk);
        EXPECT_EQ(output.setMode(sound, SoundMode::LoopNormal), kSoundOk);
        EXPECT_EQ(output.playSound(sound, channel), kSoundOk);
        listen(output, goneAfter * kRate);
        EXPECT_GT(listen(output, kRate).peak(), 0.01f) << name << " does not loop";
        EXPECT_EQ(output.setVolume(channel, 0), kSoundOk);
    }
}

} // namespace
