#include "Listening.h"
#include "testing/TemporaryFolder.h"

namespace {

constexpr float kSixteenBits = 1.0f / 16384; // what a file's rounding may change

class SoundOutputTest : public testing::Test {
protected:
    SoundOutputTest()
    {
        EXPECT_EQ(output.create(), kSoundOk);
        EXPECT_EQ(output.init(32), kSoundOk);
    }

    SoundData* load(const std::string& file)
    {
        SoundData* sound = nullptr;
        EXPECT_EQ(output.createSound(file, sound), kSoundOk);
        return sound;
    }

    SoundData* loadWave(const std::vector<float>& samples, int channels = 1, int rate = kRate)
    {
        const std::string path = (folder.path() / (std::to_string(++files) + ".wav")).string();
        writeWave(path, samples, channels, rate);
        return load(path);
    }

    SoundChannel play(SoundData* sound, SoundMode mode = SoundMode::LoopNormal)
    {
        SoundChannel channel;
        EXPECT_EQ(output.setMode(sound, mode), kSoundOk);
        EXPECT_EQ(output.playSound(sound, channel), kSoundOk);
        return channel;
    }

    TemporaryFolder folder;
    int files = 0;
    SoundOutput output{SoundTarget::Loopback};
};

TEST_F(SoundOutputTest, HearsFilesAtTheFrequencyAndVolumeAskedFor)
{
    struct Case {
        int fileRate;
        float frequency; // 0: the file's own
        float volume;
        double heard; // hertz, of a tone of 500 in the file
    };
    for (const Case& row : {Case{kRate, 44100, 0.3f, 500}, Case{22050, 0, 0.6f, 500}, Case{22050, 44100, 0.6f, 1000},
             Case{kRate, 22050, 1.0f, 250}, Case{kRate, 180810, 1.0f, 2050}, Case{kRate, 88200, 0.0f, 1000}}) {
        const SoundChannel channel = play(loadWave(tone(500, row.fileRate, 0.5, row.fileRate), 1, row.fileRate));
        if (row.frequency > 0) {
            EXPECT_EQ(output.setFrequency(channel, row.frequency), kSoundOk);
        }
        EXPECT_EQ(output.setVolume(channel, row.volume), kSoundOk);
        listen(output, kRate / 10); // a volume is reached within the first passes
        const Samples heard = listen(output, kRate);
        EXPECT_NEAR(amplitudeAt(heard, row.heard), 0.5 * row.volume, 0.003)
            << row.fileRate << " Hz at " << row.frequency;
        EXPECT_LT(amplitudeAt(heard, row.heard * 1.02), 0.002) << "the frequency is only near the one asked for";
        EXPECT_EQ(output.setVolume(channel, 0), kSoundOk);
    }
}

TEST_F(SoundOutputTest, KeepsLeftAndRightApartAndPlaysOneChannelOnBoth)
{
    std::vector<float> leftOnly;
    for (const float sample : tone(500, kRate, 0.5)) leftOnly.insert(leftOnly.end(), {sample, 0.0f});
    play(loadWave(leftOnly, 2));
    Samples heard = listen(output, kRate);
    EXPECT_NEAR(amplitudeAt(heard, 500), 0.5, 0.001);
    for (int i = 0; i < heard.frames(); ++i) ASSERT_EQ(heard.right(i), 0.0f) << i;

    play(loadWave(tone(900, kRate, 0.25)));
    heard = listen(output, kRate);
    EXPECT_NEAR(amplitudeAt(heard, 900), 0.25, 0.001);
    EXPECT_NEAR(heard.right(1000),
        heard.left(1000) - 0.5f * std::sin(2 * std::numbers::pi_v<float> * 500 * 1000 / kRate), 0.001f);
}

TEST_F(SoundOutputTest, LoopsWithoutAGapAlsoAtThreeAndFourTimesTheSpeed)
{
    const std::vector<float> samples =
        tone(441, 4411, 0.5); // three and four don't divide its length: the loop point moves
    for (const int speed : {1, 3, 4}) {
        const SoundChannel channel = play(loadWave(samples));
        EXPECT_EQ(output.setFrequency(channel, static_cast<float>(speed * kRate)), kSoundOk);
        const Samples heard = listen(output, kRate);
        for (int i = 0; i < heard.frames(); ++i) {
            const float expected = samples[static_cast<std::size_t>(i * speed) % samples.size()];
            ASSERT_NEAR(heard.left(i), expected, kSixteenBits) << "frame " << i << " at " << speed;
        }
        EXPECT_EQ(output.setVolume(channel, 0), kSoundOk);
        listen(output, kRate / 10);
    }
}

TEST_F(SoundOutputTest, PlaysTheMusicRoundAndRoundWithoutAGapEvenInSlowPasses)
{
    const std::string file = DATA_FOLDER "Audio/quackdash.mp3";
    const Samples music = decoded(file);
    ASSERT_EQ(music.frames(), 96 * kRate);

    play(load(file));
    const Samples heard = listen(output, 200 * kRate, kRate / 5); // twice over the join
    for (int i = 0; i < heard.frames(); ++i) {
        ASSERT_NEAR(heard.left(i), music.left(i % music.frames()), 1e-6f) << "frame " << i;
        ASSERT_NEAR(heard.right(i), music.right(i % music.frames()), 1e-6f) << "frame " << i;
    }
    listen(output, 10 * kRate, 5 * kRate); // passes of seconds
    EXPECT_GT(listen(output, kRate).peak(), 0.02f) << "the stream ran dry and stayed so";
}

TEST_F(SoundOutputTest, EndsWhatDoesNotLoopAndFreesItsChannel)
{
    constexpr int kStreamedFrames = 13 * kRate; // longer than what is decoded whole
    for (const int frames : {kRate / 2, kStreamedFrames}) {
        SoundData* sound = loadWave(std::vector<float>(static_cast<std::size_t>(frames), 0.125f));
        const SoundChannel first = play(sound, SoundMode::LoopOff);
        const Samples heard = listen(output, frames + kRate / 4);
        EXPECT_NEAR(heard.left(frames - 1), 0.125f, kSixteenBits) << "cut off at the end";
        EXPECT_EQ(heard.left(frames + 1), 0.0f) << "went on after the end";
        EXPECT_EQ(play(sound, SoundMode::LoopOff).index, first.index) << "the channel is still taken";
        listen(output, frames + kRate / 4);
    }
}

TEST_F(SoundOutputTest, LetsTheOldestOneShotGiveWayToThe33rdSound)
{
    const auto hertz = [](int i) { return 400.0 + 100 * i; };
    SoundChannel oldest;
    for (int i = 0; i < 32; ++i) { // the first two loop: they stay
        const SoundChannel channel =
            play(loadWave(tone(hertz(i), kRate, 0.02)), i < 2 ? SoundMode::LoopNormal : SoundMode::LoopOff);
        if (i == 2) oldest = channel;
    }
    const SoundChannel late = play(loadWave(tone(hertz(32), kRate, 0.02)), SoundMode::LoopOff);

    const Samples heard = listen(output, kRate / 2);
    for (int i = 0; i <= 32; ++i)
        EXPECT_NEAR(amplitudeAt(heard, hertz(i)), i == 2 ? 0.0 : 0.02, 0.001) << "sound " << i;
    EXPECT_NE(output.setVolume(oldest, 0), kSoundOk) << "its channel is another sound's";
    EXPECT_NE(output.setFrequency(oldest, kRate), kSoundOk);
    EXPECT_EQ(output.setVolume(late, 0), kSoundOk);
}

} // namespace
