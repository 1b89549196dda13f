#include "audio/AudioSystem.h"

#include "Listening.h"
#include "testing/CapturedLog.h"
#include "testing/TemporaryFolder.h"

namespace {

class AudioSystemTest : public testing::Test {
protected:
    std::string toneFile(double hertz, double amplitude = 0.25)
    {
        std::string path = (folder.path() / (std::to_string(hertz) + ".wav")).string();
        writeWave(path, tone(hertz, kRate, amplitude));
        return path;
    }

    Samples listenFor(double seconds) { return listen(audio.getOutput(), static_cast<int>(seconds * kRate)); }

    std::string printedByPlaying(const std::string& name)
    {
        CapturedLog log;
        audio.play(name, false, 1.0f);
        return log.text();
    }

    TemporaryFolder folder;
    AudioSystem audio{SoundTarget::Loopback};
};

TEST_F(AudioSystemTest, PlaysRegisteredSoundsByNameTheSecondOfTwoOfOneName)
{
    audio.init({{"low", toneFile(500)}, {"high", toneFile(700)}});
    audio.addSound("high", toneFile(900));
    audio.play("low", true, 1.0f);
    audio.play("high", false, 0.4f);
    Samples heard = listenFor(1);
    EXPECT_NEAR(amplitudeAt(heard, 500), 0.25, 0.001);
    EXPECT_NEAR(amplitudeAt(heard, 700), 0.0, 0.001);
    EXPECT_NEAR(amplitudeAt(heard, 900), 0.1, 0.001);
    heard = listenFor(1);
    EXPECT_NEAR(amplitudeAt(heard, 500), 0.25, 0.001) << "a looping sound ended";
    EXPECT_NEAR(amplitudeAt(heard, 900), 0.0, 0.001) << "a sound that does not loop was repeated";
}

TEST_F(AudioSystemTest, GlidesThePitchByOneStepPerCall)
{
    audio.init({});
    const std::unique_ptr<Sound> engine = audio.createSound("engine", toneFile(1000));
    engine->play(true, 0.6f);

    const auto expectHeard = [this](double hertz) {
        listenFor(0.1);
        EXPECT_NEAR(amplitudeAt(listenFor(1), hertz), 0.15, 0.001) << hertz;
    };
    const auto glide = [&engine](float target, int calls) {
        for (int call = 0; call < calls; ++call) engine->setPitch(target);
    };
    expectHeard(1000); // before the first call, at the file's own speed
    glide(0.0f, 1);
    expectHeard(3000);
    glide(0.05f, 4);
    expectHeard(3040);
    glide(0.05f, 4);
    expectHeard(3050); // stays
    glide(1.0f, 200);
    expectHeard(4000);
    glide(-1.0f, 300);
    expectHeard(2000);
}

TEST_F(AudioSystemTest, ReportsWhatItCannotPlayAndGoesOn)
{
    EXPECT_EQ(printedByPlaying("moo"), "WARNING | Sound does not exist: moo\n") << "before init";
    const std::string missing = (folder.path() / "nothing.wav").string();
    std::unique_ptr<Sound> engine;
    {
        CapturedLog log;
        audio.init({{"bang", missing}, {"duck", toneFile(500, 0.01)}});
        engine = audio.createSound("engine", missing);
        EXPECT_EQ(log.count("ERROR | Error, initializing Sound: bang\n"), 1) << log.text();
        EXPECT_FALSE(log.contains("duck")) << log.text();
    }
    EXPECT_EQ(printedByPlaying("moo"), "WARNING | Sound does not exist: moo\n");
    EXPECT_EQ(printedByPlaying("engine"), "WARNING | Sound does not exist: engine\n") << "a sound of somebody's own";
    EXPECT_EQ(printedByPlaying("bang"), "ERROR | Error, looping sound: bang\n");
    CapturedLog log;
    for (int frame = 0; frame < 10; ++frame) engine->setPitch(1.0f);
    EXPECT_EQ(log.text(), "") << "a line every frame";

    for (int i = 0; i < 32; ++i) audio.play("duck", true, 1.0f);
    EXPECT_EQ(printedByPlaying("duck"), "ERROR | Error, playing sound: duck\n") << "all channels are taken";
    EXPECT_NEAR(amplitudeAt(listenFor(1), 500), 0.32, 0.005);
}

TEST_F(AudioSystemTest, DoesNotClipInTheLoudestMomentOfAMatch)
{
    const std::string sounds = DATA_FOLDER "Audio/";
    audio.init({{"musik", sounds + "quackdash.mp3"}, {"duck", sounds + "duck.wav"}, {"bang", sounds + "bang.wav"}});
    audio.play("musik", true, 1.0f);
    std::vector<std::unique_ptr<Sound>> engines;
    for (int i = 0; i < 6; ++i) {
        engines.push_back(audio.createSound("engine", sounds + "engine.wav"));
        engines.back()->play(true, 0.6f);
        engines.back()->setPitch(0.0f);
    }
    float peak = 0;
    for (int frame = 0; frame < 12 * 60; ++frame) { // standing for six seconds, then full throttle
        for (const auto& engine : engines) engine->setPitch(frame < 6 * 60 ? 0.0f : 1.0f);
        if (frame % 60 == 0) {
            for (int shot = 0; shot < 10; ++shot) audio.play("bang", false, 0.3f);
        }
        peak = std::max(peak, listen(audio.getOutput(), kRate / 60).peak());
    }
    EXPECT_LT(peak, 1.0f);
    EXPECT_GT(peak, 0.5f) << "not everything was heard";
}

} // namespace
