#include "Listening.h"

#include <AL/al.h>

namespace {

using AudioSystemTest = ListeningTest;

TEST_F(AudioSystemTest, LoopsWithoutAGapAtThePitchThatItHasGlidedToEvenWhenTheFileIsGone)
{
    struct Loop {
        const char* what;
        std::string file;
        float pitch; ///< glided to by `calls` steps
        int calls;
        double speed; ///< frames of the file to one that is heard
        int seconds;
    };
    const Samples sine = tones({441}, 4411, 0.5); // its length is no multiple of the speeds
    const std::string tone = write("tone.wav", sine), slowTone = write("slow.wav", sine, kRate / 2);
    const std::string music = copyGameFile("quackdash.mp3"); // of 96 seconds
    const Loop rows[] = {
        {"own speed", tone, 0.0f, 0, 1.0, 1},
        {"own speed", slowTone, 0.0f, 0, 0.5, 1},
        {"own speed", music, 0.0f, 0, 1.0, 200},
        {"at rest", tone, 0.0f, 1, 3.0, 1},
        {"at rest", slowTone, 0.0f, 1, 3.0, 1},
        {"on its way", tone, 1.0f, 50, 3.5, 1},
        {"on its way back", tone, -1.0f, 50, 2.5, 1},
        {"arrived", tone, 0.5f, 81, 3.5, 1},
        {"arrived at the highest", tone, 1.0f, 111, 4.0, 1},
    };
    for (const Loop& row : rows) {
        const Samples samples = readSoundFile(row.file);
        AudioSystem player(SoundTarget::Loopback);
        player.init({});
        const std::unique_ptr<Sound> sound = player.createSound("", row.file);
        if (row.file == music) folder.write(std::filesystem::path(music).filename(), "");
        sound->play(true, 1.0f);
        for (int i = 0; i < row.calls; ++i) sound->setPitch(row.pitch);
        const Samples heard = listen(player, row.seconds);
        for (int i = 0; i < heard.frames(); i += 2) { // half frames lie between
            const int from = static_cast<int>(i * row.speed) % samples.frames();
            ASSERT_NEAR(heard.at(i, 0), samples.at(from, 0), 1e-6f) << row.what << ", frame " << i;
            ASSERT_NEAR(heard.at(i, 1), samples.at(from, samples.channels - 1), 1e-6f) << row.what << ", frame " << i;
        }
    }
}

TEST_F(AudioSystemTest, IsHeardFromEveryLayoutOfLoudspeakers)
{
    struct Layout {
        SoundTarget target;
        int loudspeakers;
        double ownSide;   ///< how much of the file's left side is heard from the left
        double otherSide; ///< how much of its right side is
        double tolerance; ///< older sound libraries spread the sides a little on six loudspeakers
    };
    const Layout rows[] = {
        {SoundTarget::MonoLoopback, 1, 1.0, 1.0, 0.001},
        {SoundTarget::Loopback, 2, 1.0, 0.0, 0.001},
        {SoundTarget::SurroundLoopback, 6, 0.85, 0.1, 0.16},
    };
    const std::string stereo = write("stereo.wav", tones({500, 700}, kRate, 0.4));
    const std::string mono = write("mono.wav", tones({900}, kRate, 0.4));
    for (const Layout& row : rows) {
        AudioSystem player(row.target);
        player.init({{"stereo", stereo}, {"mono", mono}});
        player.play("stereo", true, 1.0f);
        player.play("mono", true, 0.5f);
        const Samples heard = listen(player, 1, row.loudspeakers);
        for (int i = 0; i < row.loudspeakers; ++i) {
            SCOPED_TRACE(std::to_string(i) + " of " + std::to_string(row.loudspeakers));
            const double own = i < 2 ? row.ownSide : 0.0, other = i < 2 ? row.otherSide : 0.0;
            EXPECT_NEAR(heard.amplitudeAt(i % 2 ? 700 : 500, i) / 0.4, own, row.tolerance);
            EXPECT_NEAR(heard.amplitudeAt(i % 2 ? 500 : 700, i) / 0.4, other, row.tolerance);
            EXPECT_NEAR(heard.amplitudeAt(900, i) / 0.2, own + other, row.tolerance);
        }
    }
}

TEST_F(AudioSystemTest, PlaysSoundsByNameAndLetsTheOldestOneShotGiveWayToThe33rd)
{
    const auto hertz = [](int i) { return 400.0 + 100 * i; };
    audio.init({});
    for (int i = 0; i <= 32; ++i) { // the first two loop, and the fourth is long: they stay
        const std::string name = std::to_string(i);
        for (const double each : {200.0, hertz(i)}) // the second in place of the first
            audio.addSound(name, write(name, tones({each}, i == 3 ? 2 * kRate : kRate / 2, 0.04)));
        audio.play(name, i < 2, 0.5f);
    }
    const Samples heard = listen(0.5);
    listen(0.01); // newer sound libraries fade out
    const Samples heardLater = listen(0.5);
    for (int i = 0; i <= 32; ++i) {
        EXPECT_NEAR(heard.amplitudeAt(hertz(i)), i == 2 ? 0.0 : 0.02, 0.001) << i;
        EXPECT_NEAR(heardLater.amplitudeAt(hertz(i)), i < 2 || i == 3 ? 0.02 : 0.0, 0.001) << i;
    }
    for (int i = 3; i < 32; ++i) audio.play("32", true, 0.5f);
    const Samples full = listen(0.5);
    EXPECT_NEAR(full.amplitudeAt(hertz(32)), 29 * 0.02, 0.01);
    EXPECT_NEAR(full.amplitudeAt(hertz(3)), 0.02, 0.001) << "gave way although others had ended";
    audio.play("32", true, 0.5f); // now it does
    EXPECT_EQ(printedBy([this] { audio.play("4", false, 0.5f); }), "ERROR | Error, playing sound: 4\n");
}

TEST_F(AudioSystemTest, ReportsWhatItCannotPlayAndGoesOn)
{
    const auto expectPlay = [this](const char* name, float volume, const std::string& printed) {
        EXPECT_EQ(printedBy([&] { audio.play(name, false, volume); }), printed);
    };
    expectPlay("moo", 1.0f, "WARNING | Sound does not exist: moo\n"); // before init
    const std::string missing = (folder.path() / "nothing.wav").string();
    audio.init({{"bang", missing}, {"duck", write("duck.wav", tones({500}, kRate, 0.01))}});
    const std::unique_ptr<Sound> engine = audio.createSound("engine", missing);
    expectPlay("moo", 1.0f, "WARNING | Sound does not exist: moo\n");
    expectPlay("engine", 1.0f, "WARNING | Sound does not exist: engine\n");
    expectPlay("bang", 1.0f, "ERROR | Error, looping sound: bang\n");
    expectPlay("duck", -1.0f, "ERROR | Error, setting sound-volume: duck\n");
    expectPlay("duck", NAN, "ERROR | Error, setting sound-volume: duck\n");
    EXPECT_EQ(printedBy([&] { engine->setPitch(1.0f); }), "") << "this would come every frame";
    alEnable(-1);
    EXPECT_EQ(printedBy([&] { engine->setPitch(1.0f); }), "ERROR | Error, updating Audiosystem!\n");
    expectPlay("duck", 1.0f, "");
    EXPECT_NEAR(listen(1).amplitudeAt(500), 0.01, 0.001);
}

TEST_F(AudioSystemTest, DoesNotClipInTheLoudestMomentOfAMatch)
{
    audio.init({{"musik", SOUND_FOLDER "quackdash.mp3"}, {"bang", SOUND_FOLDER "bang.wav"}});
    audio.play("musik", true, 1.0f);
    std::vector<std::unique_ptr<Sound>> engines;
    for (int i = 0; i < 6; ++i) {
        engines.push_back(audio.createSound("engine", SOUND_FOLDER "engine.wav"));
        engines.back()->play(true, 0.6f);
    }
    float peak = 0;
    for (int frame = 0; frame < 12 * 60; ++frame) { // standing for six seconds, then full throttle
        for (int shot = 0; shot < 10 && frame % 60 == 0; ++shot) audio.play("bang", false, 0.3f);
        for (const auto& engine : engines) engine->setPitch(frame < 6 * 60 ? 0.0f : 1.0f);
        peak = std::max(peak, listen(1 / 60.0).peak());
    }
    EXPECT_LT(peak, 1.0f);
    EXPECT_GT(peak, 0.5f) << "not everything was heard";
}

} // namespace
