#include "testing/GameSession.h"
#include "testing/Occurrences.h"
#include "testing/PngFile.h"

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

/// Return how far two pictures of any size lie apart, 0 to 255: as much as any sixteenth by twelfth of them does on an
/// average.
double distance(const Picture& one, const Picture& other)
{
    constexpr int kColumns = 16, kRows = 12;
    const auto meanOf = [](const Picture& picture, int column, int row, int channel) {
        const int left = picture.width * column / kColumns, right = picture.width * (column + 1) / kColumns;
        const int top = picture.height * row / kRows, bottom = picture.height * (row + 1) / kRows;
        double sum = 0;
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                sum += picture.pixels[static_cast<std::size_t>(3 * (y * picture.width + x) + channel)];
        return sum / ((right - left) * (bottom - top));
    };
    double most = 0;
    for (int cell = 0; cell < kColumns * kRows * 3; ++cell) {
        const int column = cell % kColumns, row = cell / kColumns % kRows, channel = cell / kColumns / kRows;
        most = std::max(most, std::abs(meanOf(one, column, row, channel) - meanOf(other, column, row, channel)));
    }
    return most;
}

TEST(Options, MakeTheWindowAsLargeAsTheySayAndTheViewsFillIt)
{
    using Size = std::pair<int, int>;
    const auto show = [](GameSession& game, std::vector<std::string> arguments, const Size& resized = {}) {
        game.start({}, arguments);
        if (resized.first > 0) game.screen().resizeWindow(resized.first, resized.second);
        std::this_thread::sleep_for(1s);
        EXPECT_TRUE(game.screen().findWindow("Quackdash"));
        const Picture picture = game.screen().look();
        EXPECT_EQ(game.quit(), 0);
        return picture;
    };
    const auto sizeOf = [](const Picture& picture) { return Size(picture.width, picture.height); };
    Picture usual;
    {
        GameSession game;
        usual = show(game, {});
        EXPECT_EQ(sizeOf(usual), Size(1024, 768));
        const Picture little = show(game, {"--size", "640x480"});
        EXPECT_EQ(sizeOf(little), Size(640, 480));
        EXPECT_LT(distance(usual, little), 20);
        const Picture grown = show(game, {"--size", "500x700", "--resizable", "--vsync"}, {640, 480});
        EXPECT_LT(changedShare(little, grown), 0.1);
        const Picture tall = show(game, {"--size", "500x700", "--wide-views"});
        EXPECT_GT(distance(usual, tall), 40);
        EXPECT_EQ(game.complaints(), "");
    }
    GameSession game("1920x1080x24");
    const Picture whole = show(game, {"-f", "--monitor", "quack"});
    EXPECT_EQ(sizeOf(whole), Size(1920, 1080));
    EXPECT_LT(distance(usual, whole), 20) << "views are stretched";
    EXPECT_EQ(game.complaints(), "WARNING | There is no monitor quack; the primary one is used\n");
    EXPECT_EQ(game.program().count("The shadow map is cut to 5461x3072: "), 1);
}

TEST(Options, ChangeTheKeysThatPeopleJoinStartAndTakePicturesWith)
{
    GameSession game;
    const fs::path pictures = fs::current_path() / "my pictures/Quackdash";
    fs::create_directory("quackdash");
    std::ofstream("user-dirs.dirs") << "XDG_PICTURES_DIR=\"" << fs::current_path().string() << "/my pictures\"\n";
    std::ofstream("quackdash/quackdash.conf")
        << "arrows.shoot = q\nwasd.shoot = leftshift\nwasd.start = Q\nkey.screenshot = f10\n";
    const auto saved = [&] { return game.program().count("Picture saved: " + pictures.string() + "/20"); };

    EXPECT_EQ(game.ask({"--arrows.start", "f10"}), 2);
    EXPECT_EQ(game.program().output(),
        "quackdash: --arrows.start: \"f10\" is taken by key.screenshot (" + fs::current_path().string() +
            "/quackdash/quackdash.conf:4); see --help\n");

    game.start({}, {"--arrows.start", "f", "--seed", "5"});
    EXPECT_EQ(game.program().count("quackdash.conf:3: wasd.start: \"q\" is taken by arrows.shoot ("), 1);
    for (const char* key : {"k", "1", "Return", "f"}) { // nobody's, or of nobody who has joined
        game.screen().press({key});
        std::this_thread::sleep_for(300ms);
        game.screen().release({key});
    }
    EXPECT_EQ(game.program().count("Player registered"), 0);
    for (const char* shoot : {"q", "Shift_L"}) game.holdUntil(shoot, "Player registered");
    game.screen().press({"F10"});
    game.program().waitFor("a picture", [&] { return saved() == 1; });
    std::this_thread::sleep_for(300ms);
    game.screen().release({"F10"});
    EXPECT_EQ(saved(), 1) << "one for each press";
    game.holdUntil("f", "Enter PlayGamestate");
    game.holdUntil("F10", "Picture saved: ");
    std::vector<fs::path> files(fs::directory_iterator(pictures), {});
    std::sort(files.begin(), files.end(),
        [](const fs::path& a, const fs::path& b) { return fs::last_write_time(a) < fs::last_write_time(b); });
    ASSERT_EQ(files.size(), 2);
    const Picture first = readPng(files[0].string()), second = readPng(files[1].string());
    EXPECT_EQ(std::pair(second.width, second.height), std::pair(1024, 768));
    EXPECT_GT(changedShare(first, second), 0.5);
    const auto isInWindow = [&] { return changedShare(second, game.screen().look()) < 0.2; };
    game.program().waitFor("it in the window", isInWindow, 5);
    EXPECT_EQ(game.quit(), 0);

    fs::remove_all("my pictures");
    std::ofstream("my pictures") << "no folder";
    game.start();
    game.holdUntil("F10", "WARNING | Cannot save the picture " + pictures.string());
    EXPECT_EQ(game.quit(), 0);
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

TEST(Options, GiveComfort)
{
    GameSession game("1280x720x24");
    std::ofstream("user-dirs.dirs") << "XDG_PICTURES_DIR=\"" << fs::current_path().string() << "\"\n";
    const GameSession::Environment british{{"LC_ALL", "en_GB.UTF-8"}, {"LANGUAGE", "en"}};
    game.start(british, {"--comfort", "--join", "arrows,wasd", "--start"});
    game.program().waitForOutput("WARNING | The screen may go dark during the match: ");
    EXPECT_EQ(game.screen().look().width, 1280);
    game.holdUntil("F10", "Picture saved: " + fs::current_path().string() + "/Quackdash/20");
    const Picture whole = readPng(fs::directory_iterator("Quackdash")->path().string());
    EXPECT_EQ(std::pair(whole.width, whole.height), std::pair(1280, 720));
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.program().count("Player 0, Arrows\n"), 1);

    game.start(british, {"--comfort", "--windowed", "--size", "640x480", "--language", "de", "--join", "arrows"});
    EXPECT_EQ(game.screen().look().width, 640);
    EXPECT_EQ(game.quit(), 0);
    EXPECT_EQ(game.program().count("Player 0, Pfeil\n"), 1);
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
