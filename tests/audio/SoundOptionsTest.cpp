#include "Listening.h"

namespace {

using SoundOptionsTest = ListeningTest;

TEST_F(SoundOptionsTest, MakeMusicAndEffectsLouderInEvenStepsUpToWhatTheyAre)
{
    constexpr double kDecibels = 0.5; // a step
    const std::string music = write("music.wav", tones({500}, kRate, 0.4)),
                      quack = write("duck.wav", tones({900}, kRate, 0.4));
    const auto amplitudes = [&](const SoundOptions& options, bool heard = true) {
        AudioSystem player(SoundTarget::Loopback);
        player.init({{"musik", music}, {"duck", quack}}, options);
        player.play("musik", true, 1.0f);
        player.play("duck", true, 0.5f);
        player.setHeard(heard);
        const Samples samples = listen(player, 1);
        return std::pair{samples.amplitudeAt(500), samples.amplitudeAt(900)};
    };
    const auto [fullMusic, fullDuck] = amplitudes({});
    EXPECT_FLOAT_EQ(static_cast<float>(fullMusic), 0.4f);
    EXPECT_FLOAT_EQ(static_cast<float>(fullDuck), 0.2f);

    const struct {
        SoundOptions options;
        int musicSteps, duckSteps; // below 100; -1 for silence
    } rows[] = {
        {{.volume = 99}, 1, 1},
        {{.volume = 50}, 50, 50},
        {{.volume = 1}, 99, 99},
        {{.volume = 0}, -1, -1},
        {{.musicVolume = 80}, 20, 0},
        {{.musicVolume = 0}, -1, 0},
        {{.effectsVolume = 70}, 0, 30},
        {{.volume = 90, .musicVolume = 80, .effectsVolume = 60}, 30, 50},
        {{.mute = true}, -1, -1},
    };
    for (const auto& row : rows) {
        const auto [musicHeard, duckHeard] = amplitudes(row.options);
        const auto expected = [](int steps) { return steps < 0 ? 0.0 : std::pow(10.0, -kDecibels * steps / 20); };
        EXPECT_NEAR(musicHeard / fullMusic, expected(row.musicSteps), 1e-4) << row.options.volume;
        EXPECT_NEAR(duckHeard / fullDuck, expected(row.duckSteps), 1e-4) << row.options.volume;
        EXPECT_EQ(amplitudes(row.options, false), std::pair(0.0, 0.0));
    }
}

} // namespace
