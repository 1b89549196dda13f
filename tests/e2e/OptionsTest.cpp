#include "GameSession.h"
#include "testing/Occurrences.h"

#include <gtest/gtest.h>
#include <sndfile.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <fstream>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

std::string contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(Options, ThatAskForAnAnswerGetItWithoutADisplay)
{
    GameSession game;
    const std::string here = fs::current_path().string();
    const struct {
        std::vector<std::string> arguments;
        int status;
        const char* answer; // a pattern
    } rows[] = {
        {{"--help"}, 0, "Quackdash.*\nUsage: quackdash [^]*\n  --volume N  [^]*"},
        {{"-v"}, 0, "Quackdash [0-9.]+\nPhysX SDK 4\\.[^]*\nGLFW 3[^]*\nOpenAL [^]*\nData: /[^]*\n"},
        {{"--list-devices"}, 0, "Monitors:\n  no display\nSound devices:\n  No Output\nGame-pads:\n  none\n"},
        {{"--volume", "x"}, 2, "quackdash: --volume: expected 0 to 100, not \"x\".*\n"},
        {{"--help", "--config", "nothing"}, 2, "quackdash: --config: .*/nothing.*\n"},
        {{}, 1, "[^]*ERROR \\| Glfw initialization failed\n"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(game.ask(row.arguments), row.status);
        EXPECT_TRUE(std::regex_match(game.program().output(), std::regex(row.answer))) << game.program().output();
    }
    game.ask({"--version"});
    EXPECT_EQ(game.program().count("\nData: " + here + "\n"), 1);
    EXPECT_FALSE(fs::exists("quackdash")) << "something was written unasked";

    for (const auto& arguments : {std::vector<std::string>{"--mute"}, {"--seed", "7"}}) { // the file keeps the first
        std::vector<std::string> all = arguments;
        all.emplace_back("--write-settings");
        EXPECT_EQ(game.ask(all), 0);
        EXPECT_EQ(game.program().output(), "Settings written to " + here + "/quackdash/quackdash.conf\n");
    }
    const std::string written = contents("quackdash/quackdash.conf");
    for (const char* line : {"\n# play without any sound\nmute=true\n", "\nseed=7\n", "\nvolume=100\n"})
        EXPECT_NE(written.find(line), std::string::npos) << written;
    EXPECT_EQ(game.ask({"--write-settings", "--config", "/proc/settings"}), 1);
}

TEST(Options, LeadStraightIntoAMatchWithItsOwnDataPlacesAndLog)
{
    GameSession game;
    const std::string here = fs::current_path().string(), log = "quackdash/log.txt";
    fs::create_directory("other");
    for (const char* name : {"Shader", "Textures", "Models", "Audio"}) fs::rename(name, fs::path("other") / name);
    fs::remove("other/Audio/duck.wav"); // by which these data are told from others
    fs::create_directory("quackdash");
    std::ofstream("quackdash/quackdash.conf") << "computer-players = 2\nvolume = 500\nstart\ndata = other\n";
    const GameSession::Environment onDisplay{{"DISPLAY", game.screen().getName()}, {"ALSOFT_DRIVERS", "null"}};
    game.launch(onDisplay, {"--join", "wasd,pad2", "--log-file", "auto"});
    game.program().waitFor("the match", [&] { return occurrences(contents(log), "Enter PlayGamestate\n") == 1; });
    game.program().waitFor("a window", [&] { return game.screen().findWindow("Quackdash"); });
    EXPECT_EQ(game.quit(), 0);
    for (const std::string& line :
        {"WARNING | " + here + "/quackdash/quackdash.conf:2: volume: expected 0 to 100, not \"500\"\n",
            std::string("couldn't open sound file: Audio/duck.wav "), std::string("Player 0, WASD\n"),
            std::string("Player 1, XBOX 2\n"), std::string("Player 3, AI-Controller 0\n")})
        EXPECT_EQ(occurrences(contents(log), line), 1) << line << contents(log);
    EXPECT_EQ(game.program().output(), "");

    std::vector<Picture> views;
    for (const char* seed : {"5", "5", "6"}) { // the first picture tells where the cars are: they have hardly moved
        game.launch(onDisplay, {"--join", "arrows,wasd", "--computer-players=0", "--start", "--seed", seed});
        game.program().waitForOutput("Enter PlayGamestate");
        game.program().waitFor("a window", [&] { return game.screen().findWindow("Quackdash"); });
        Picture view;
        game.program().waitFor("a picture", [&] {
            view = game.screen().look();
            const auto dark =
                std::count_if(view.pixels.begin(), view.pixels.end(), [](int level) { return level < 20; });
            return 2 * dark < static_cast<std::ptrdiff_t>(view.pixels.size());
        });
        views.push_back(view);
        EXPECT_EQ(game.quit(), 0);
    }
    EXPECT_LT(changedShare(views[0], views[1]), 0.05);
    EXPECT_GT(changedShare(views[1], views[2]), 0.2);

    game.start({}, {"--join", "wasd", "--no-start", "--start", "--computer-players", "0"});
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.program().count("WARNING | Not started at once: "), 1);
}

TEST(Options, ChooseTheLanguageByThemselvesOrByTheLocale)
{
    GameSession game;
    const struct {
        std::vector<std::string> arguments;
        const char *locale, *languages, *device;
    } rows[] = {
        {{}, "en_GB.UTF-8", "en", "Pfeil"},
        {{"--language", "en"}, "de_DE.UTF-8", "de", "Arrows"},
        {{"--language", "auto"}, "en_GB.UTF-8", "", "Arrows"},
        {{"--language", "auto"}, "fr_FR.UTF-8", "fr:it", "Arrows"},
        {{"--language", "auto"}, "fr_FR.UTF-8", "fr:de_AT:en", "Pfeil"},
        {{"--language", "auto"}, "C.UTF-8", "en", "Pfeil"},
    };
    for (const auto& row : rows) {
        std::vector<std::string> arguments = row.arguments;
        arguments.insert(arguments.end(), {"--join", "arrows"});
        game.start({{"LC_ALL", row.locale}, {"LANGUAGE", row.languages}}, arguments);
        EXPECT_EQ(game.quit(), 0);
        EXPECT_EQ(game.complaints(), "");
        EXPECT_EQ(game.program().count(std::string("Player 0, ") + row.device + "\n"), 1)
            << row.locale << ' ' << row.languages << '\n'
            << game.program().output();
    }
}

/// What a run was heard as: samples of both sides in turn, from the first that is not silent.
class Recording {
public:
    static constexpr int kRate = 44100; // hertz

    explicit Recording(const char* file)
    {
        SF_INFO info{};
        SNDFILE* const opened = sf_open(file, SFM_READ, &info);
        samples.resize(2 * static_cast<std::size_t>(info.frames));
        sf_readf_float(opened, samples.data(), info.frames);
        sf_close(opened);
        const auto isHeard = [](float sample) { return sample != 0; };
        samples.erase(samples.begin(), std::find_if(samples.begin(), samples.end(), isHeard));
    }

    bool isSilent() const { return samples.empty(); }
    double level(double seconds) const { return level(samples.begin(), count(seconds)); } ///< of the first seconds
    double lastLevel(double seconds) const { return level(samples.end() - count(seconds), count(seconds)); }

private:
    using Samples = std::vector<float>;

    static Samples::difference_type count(double seconds) { return static_cast<int>(seconds * kRate) * 2; }
    double level(Samples::const_iterator begin, Samples::difference_type length) const
    {
        double sum = 0;
        for (auto sample = begin; sample != begin + length; ++sample) sum += *sample * *sample;
        return std::sqrt(sum / static_cast<double>(length));
    }

    Samples samples;
};

TEST(Options, MakeTheGameAsLoudAsTheySayAndSilentWhereTheKeysAreElsewhere)
{
    GameSession game;
    std::ofstream("al.conf")
        << "[wave]\nfile = heard.wav\n[general]\nfrequency = 44100\nsample-type = float32\nchannels = stereo\n";
    const auto hear = [&](const std::vector<std::string>& arguments, bool losesKeys = false) {
        game.start({{"ALSOFT_DRIVERS", "wave"}, {"ALSOFT_CONF", "al.conf"}}, arguments);
        std::this_thread::sleep_for(2500ms);
        if (losesKeys) {
            game.screen().takeKeysAway();
            std::this_thread::sleep_for(1s);
            game.screen().closeWindow();
            EXPECT_EQ(game.program().waitForExit(), 0);
        } else {
            EXPECT_EQ(game.quit(), 0);
        }
        EXPECT_EQ(game.complaints(), "");
        return Recording("heard.wav");
    };
    const double asEver = hear({}).level(1.5);
    EXPECT_GT(asEver, 0.01);
    const Recording quiet =
        hear({"--volume", "90", "--music-volume", "90", "--effects-volume", "0", "--mute-unfocused"}, true);
    EXPECT_NEAR(quiet.level(1.5) / asEver, std::pow(10, -0.5), 0.01) << "twenty steps are ten decibels";
    EXPECT_EQ(quiet.lastLevel(0.5), 0);
    EXPECT_GT(hear({"--no-mute-unfocused"}, true).lastLevel(0.5), 0.001);
    fs::remove("heard.wav");
    game.start({{"ALSOFT_DRIVERS", "wave"}, {"ALSOFT_CONF", "al.conf"}}, {"--mute"});
    EXPECT_EQ(game.quit(), 0);
    EXPECT_FALSE(fs::exists("heard.wav")) << "a device was opened";
}

} // namespace
