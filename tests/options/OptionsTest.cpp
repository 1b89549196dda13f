#include "options/OptionLists.h"
#include "options/OptionParser.h"
#include "options/OptionTable.h"
#include "options/ReadOptions.h"
#include "platform/KeyWords.h"
#include "testing/ChildProcess.h"
#include "testing/DataScratch.h"

#include <gtest/gtest.h>

#include <cstring>
#include <regex>
#include <set>
#include <sstream>

namespace fs = std::filesystem;

namespace {

/// A user whose settings file the test writes.
class OptionsTest : public testing::Test {
protected:
    OptionsTest()
    {
        setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        for (const char* part : {"data#1/Shader", "data#1/Textures"}) fs::create_directories(folder.path() / part);
    }

    ReadOptions readWith(const std::string& settings, const std::vector<std::string>& arguments = {})
    {
        file = folder.write("quackdash/quackdash.conf", settings);
        return readOptions(arguments);
    }

    DataScratch folder;
    std::string file;
};

TEST_F(OptionsTest, ComeFromTheFileUnlessTheCommandLineSaysOtherwise)
{
    const ReadOptions read =
        readWith("volume = 40\r\nmusic-volume=\"7\"\n\n  # effects-volume = 1\n; join = pad1\nmute\n"
                 "mute-unfocused = on\njoin = wasd,pad4\nname = pad1=Oma Erna,arrows=Opa\n"
                 "colours=#ff8800,000000,0a0b0c,010203,040506,ffffff\nsound-device = 'My \"big\", loud = one'\n",
            {"--volume=30", "--volume", "20", "--no-mute", "--seed", "random", "--data", "data#1", "--name", "wasd=Kai",
                "--name=arrows=B"});
    EXPECT_EQ(read.fault, "");
    EXPECT_EQ(read.complaints, std::vector<std::string>());
    const Options& options = read.options;
    EXPECT_EQ(options.sound.volume, 20);
    EXPECT_EQ(options.sound.musicVolume, 7);
    EXPECT_EQ(options.sound.effectsVolume, 100);
    EXPECT_FALSE(options.sound.mute);
    EXPECT_TRUE(options.sound.muteUnfocused);
    EXPECT_EQ(options.sound.device, "My \"big\", loud = one");
    EXPECT_EQ(options.start.join, (std::vector{JoinDevice::Wasd, JoinDevice::Pad4}));
    EXPECT_EQ(options.start.seed, std::nullopt);
    EXPECT_EQ(options.start.names, (PlayerNames{"Oma Erna", "", "", "", "B", "Kai"}));
    EXPECT_EQ(options.colours.people[0], glm::vec4(1, 136 / 255.0f, 0, 1));

    const ReadOptions again = readWith(settingsText(options));
    EXPECT_EQ(again.complaints, std::vector<std::string>());
    EXPECT_EQ(settingsText(again.options), settingsText(options)) << "what is written is not read as it was";
    EXPECT_EQ(again.options.program.dataFolder, folder.path() / "data#1");
    EXPECT_NE(settingsText(options).find("# how loud the music is: 0 to 100 (100)\nmusic-volume=7\n"),
        std::string::npos);
}

TEST_F(OptionsTest, SayWhatTheWindowFillsByTheLastOfTheirNames)
{
    const std::pair<std::vector<std::string>, bool> rows[] = {
        {{}, true}, {{"-w"}, false}, {{"-w", "-f"}, true}, {{"--fullscreen", "--windowed"}, false}, {{"-wf"}, true}};
    for (const auto& [arguments, fills] : rows) {
        const Options options = readWith("fullscreen\nsize = 320x16384", arguments).options;
        EXPECT_EQ(options.window.fullscreen, fills) << arguments.size();
        EXPECT_EQ(options.window.size, (WindowSize{320, 16384}));
    }
}

TEST_F(OptionsTest, GiveComfortOverWhatWasSetBeforeAndLeaveTheRest)
{
    const std::string set = settingsText(readWith("", {"--comfort"}).options);
    std::string usual = settingsText(Options());
    for (const char* line : {"fullscreen=true", "wide-views=true", "own-labels=true", "hint=true", "keep-awake=true",
             "mute-unfocused=true", "culled-text=false", "language=\"auto\"", "key.screenshot=\"f10\""}) {
        const std::string name(line, std::strchr(line, '='));
        usual = std::regex_replace(usual, std::regex("\n" + name + "=.*"), std::string("\n") + line);
    }
    EXPECT_EQ(set, usual);

    for (const auto& [settings, key] : {std::pair<std::string, std::string>{"key.screenshot = q\nvolume = 3\n", "q"},
             {"wasd.shoot = f10\nvolume = 3\n", ""}, {"volume = 3\nkey.fullscreen = f10\n", ""}}) {
        const ReadOptions read = readWith(settings, {"--hint", "--comfort", "--no-hint", "-w"});
        EXPECT_EQ(read.fault, "");
        EXPECT_EQ(read.complaints, std::vector<std::string>());
        EXPECT_EQ(read.options.keys.screenshot, key);
        EXPECT_EQ(read.options.sound.volume, 3);
        EXPECT_TRUE(read.options.text.ownLabels);
        EXPECT_FALSE(read.options.text.hint || read.options.window.fullscreen);
    }

    const ReadOptions later = readWith("", {"--comfort", "--arrows.shoot", "f10"});
    EXPECT_EQ(later.fault, "");
    EXPECT_EQ(later.options.controls.halves[0][InputDevice::kShoot], "f10");
    EXPECT_EQ(later.options.keys.screenshot, "");
}

TEST_F(OptionsTest, ThatAreWrongInTheFileAreNamedByItsLineAndChangeNothing)
{
    const std::pair<std::string, const char*> rows[] = {
        {"\xEF\xBB\xBFvolum = 50", "there is no option \"volum\""},
        {"volume = 101", "volume: expected 0 to 100, not \"101\""},
        {"volume = loud", "volume: expected 0 to 100, not \"loud\""},
        {"volume =", "volume: expected 0 to 100, not \"\""},
        {"volume", "volume: expected 0 to 100, not \"\""},
        {"volume 50", "there is no option \"volume 50\""},
        {"volume = 50 # half", "volume: expected 0 to 100, not \"50 # half\""},
        {"mute = perhaps", "mute: expected true or false, not \"perhaps\""},
        {"join = wasd, pad5", "join: expected arrows, wasd, pad1, pad2, pad3, pad4, each once, not \"wasd, pad5\""},
        {"join = wasd,wasd", "join: expected arrows, wasd, pad1, pad2, pad3, pad4, each once, not \"wasd,wasd\""},
        {"seed = -1", "seed: expected 0 to 4294967295 or random, not \"-1\""},
        {"size = 319x240", "size: expected 320x240 to 16384x16384, not \"319x240\""},
        {"size = 1920x99999999999", "size: expected 320x240 to 16384x16384, not \"1920x99999999999\""},
        {"size = 1920", "size: expected 320x240 to 16384x16384, not \"1920\""},
        {"size = 1920x1080x1", "size: expected 320x240 to 16384x16384, not \"1920x1080x1\""},
        {"windowed", "windowed: on the command line only"},
        {"data = /nowhere", "data: expected a folder that holds Shader and Textures, not \"/nowhere\""},
        {"name = Oma", "name: expected DEVICE=NAME as in pad1=Granny, a device of --join and up to 9 letters without "},
        {"name = pad5=Oma", "accents, not \"pad5=Oma\""},
        {"name = pad1=J\xC3\xBCrgen", "accents, not \"pad1="},
        {"name = pad1=Oma,wasd=Bartholomew", "accents, not \"pad1=Oma,wasd=Bartholomew\""},
        {"colours = ff8800", "colours: expected default, safe, or six as in ff8800 with commas between, not "},
        {"colours = 0,1,2,3,4,5", "between, not \"0,1,2,3,4,5\""},
        {"language = fr", "language: expected de, en, auto, not \"fr\""},
        {"text-scale = 99", "text-scale: expected 100 to 300, not \"99\""},
        {"write-settings", "write-settings: on the command line only"},
        {"[Sound]", "expected NAME = VALUE, not \"[Sound]\""},
        {"= 3", "expected NAME = VALUE, not \"= 3\""},
        {"x", "expected NAME = VALUE, not \"x\""},
        {std::string("\0\1\2\x1B[31m=", 8), "there is no option \"???"},
        {std::string(100000, 'x'), "xxxxxxxxxx...\""},
    };
    for (const auto& [line, what] : rows) {
        const ReadOptions read = readWith(line + "\nmusic-volume = 1\n");
        ASSERT_EQ(read.complaints.size(), 1) << line;
        EXPECT_TRUE(read.complaints[0].starts_with(file + ":1: ")) << read.complaints[0];
        EXPECT_NE(read.complaints[0].find(what), std::string::npos) << read.complaints[0];
        EXPECT_LT(read.complaints[0].size(), 250);
        EXPECT_EQ(read.options.sound.volume, 100);
        EXPECT_EQ(read.options.start.names, PlayerNames());
        EXPECT_EQ(read.options.sound.musicVolume, 1) << "what follows is read";
    }
    fs::remove(file);
    EXPECT_EQ(readOptions({}).complaints.size(), 0) << "no file is no fault";
    fs::create_directory(file);
    EXPECT_EQ(readOptions({}).complaints, std::vector{file + ": expected a file that can be read"});
}

TEST_F(OptionsTest, ThatAreWrongOnTheCommandLineAreNamedWithWhatIsExpected)
{
    const std::pair<std::vector<std::string>, const char*> rows[] = {
        {{"--volum", "50"}, "there is no option \"--volum\""},
        {{"-x"}, "there is no option \"-x\""},
        {{"--no-volume"}, "there is no option \"--no-volume\""},
        {{"fast"}, "expected options only, not \"fast\""},
        {{"--volume", "-1"}, "--volume: expected 0 to 100, not \"-1\""},
        {{"--volume=1e1"}, "--volume: expected 0 to 100, not \"1e1\""},
        {{"--volume"}, "--volume: expected 0 to 100"},
        {{"--volume", "--mute"}, "--volume: expected 0 to 100"},
        {{"--mute=maybe"}, "--mute: expected no value"},
        {{"--computer-players", "11"}, "--computer-players: expected 0 to 10, not \"11\""},
        {{"--config", "nothing.conf"}, "--config: expected a file that is there, not \"/"},
        {{"--config", "data#1"}, "--config: expected a file that is there, not \"/"},
    };
    for (const auto& [arguments, fault] : rows) {
        const ReadOptions read = readWith("", arguments);
        EXPECT_TRUE(read.fault.starts_with(fault)) << read.fault << '\n' << fault;
        EXPECT_EQ(read.fault.find('\n'), std::string::npos);
    }
}

TEST_F(OptionsTest, ThatNameKeysTakeEachOfThemOnceAndNameBothWhoWantIt)
{
    const struct {
        std::string settings;
        std::vector<std::string> arguments;
        std::vector<std::string> complaints; // @: the settings file
        std::string fault;
        std::string keys; // of the arrow half's and the WASD half's shots, and of the first pad's
    } rows[] = {
        {"arrows.shoot = 1\nwasd.shoot = K\n", {"--pad1.shoot", "RightShoulder"}, {}, "", "1 k rightshoulder"},
        {"arrows.shoot = q\nwasd.handbrake = q\n", {}, {"@:2: wasd.handbrake: \"q\" is taken by arrows.shoot (@:1)"},
            "", "q 1 a"},
        {"arrows.handbrake = k\narrows.handbrake = q\n", {}, {}, "", "k 1 a"},
        {"arrows.shoot = l\n", {}, {"@:1: arrows.shoot: \"l\" is taken by arrows.handbrake (by default)"}, "", "k 1 a"},
        {"arrows.shoot = l\n", {"--arrows.handbrake=f10"}, {}, "", "l 1 a"},
        {"wasd.shoot = x\n", {"--key.screenshot", "x"}, {}, "--key.screenshot: \"x\" is taken by wasd.shoot (@:1)", ""},
        {"", {"--key.screenshot=x", "--wasd.left=x"}, {}, "--key.screenshot: \"x\" is taken by --wasd.left", ""},
        {"pad1.shoot = b\npad2.shoot = x\npad3.shoot = x", {},
            {"@:1: pad1.shoot: \"b\" is taken by pad1.handbrake (by default)"}, "", "k 1 a"},
        {"pad1.shoot = b\npad1.handbrake = a\narrows.start = f1\n", {},
            {"@:3: arrows.start: expected a free key such as k, 7, leftshift or f10, not \"f1\""}, "", "k 1 b"},
        // One that goes back to its own key turns out who has it since.
        {"arrows.handbrake = k\nwasd.shoot = q\narrows.shoot = q\n", {},
            {"@:3: arrows.shoot: \"q\" is taken by wasd.shoot (@:2)",
                "@:1: arrows.handbrake: \"k\" is taken by arrows.shoot (by default)"},
            "", "k q a"},
        {"pad1.shoot =\n", {},
            {"@:1: pad1.shoot: expected a button such as x, rightshoulder, dpup or +rightx, not \"\""}, "", "k 1 a"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.settings);
        const ReadOptions read = readWith(row.settings, row.arguments);
        const auto named = [&](std::string text) {
            for (std::size_t at; (at = text.find('@')) != std::string::npos;) text.replace(at, 1, file);
            return text;
        };
        std::vector<std::string> complaints;
        for (const std::string& complaint : row.complaints) complaints.push_back(named(complaint));
        EXPECT_EQ(read.complaints, complaints);
        EXPECT_EQ(read.fault, named(row.fault));
        const ControlOptions& controls = read.options.controls;
        const auto shot = [](const ControlOptions::Words& words) { return words[InputDevice::kShoot]; };
        if (row.fault.empty()) {
            EXPECT_EQ(shot(controls.halves[0]) + ' ' + shot(controls.halves[1]) + ' ' + shot(controls.pads[0]),
                row.keys);
        }
    }
    std::map<int, std::string> words;
    for (const std::string& word : keyWords()) {
        const auto [other, isNew] = words.try_emplace(keyOf(word), word);
        EXPECT_TRUE(isNew && other->first != kNoKey) << word << " is " << other->second;
    }
    EXPECT_EQ(words.size(), 120) << "as many keys as GLFW knows";
}

// What a new row can get wrong.
TEST_F(OptionsTest, EachHasAWordOfHelpAndADefaultThatItTakes)
{
    std::set<std::string> names;
    for (const Option& option : optionTable()) {
        EXPECT_TRUE(names.insert(option.name).second) << option.name << " is there twice";
        EXPECT_FALSE(option.letter && !names.insert({option.letter}).second) << option.letter << " is there twice";
        EXPECT_FALSE(option.value.hasOpposite && !names.insert("no-" + option.name).second) << option.name;
        EXPECT_EQ(option.help.empty(), option.group.empty()) << option.name;
        EXPECT_FALSE(option.help.ends_with('.') || option.help.find('\n') != std::string::npos) << option.help;
        Options options;
        const std::string byDefault = option.value.write ? option.value.write(options) : "";
        EXPECT_TRUE(option.value.read(options, byDefault)) << option.name << " does not take " << byDefault;
        if (option.value.write) {
            EXPECT_EQ(option.value.write(options), byDefault) << option.name;
        }
    }
}

TEST_F(OptionsTest, AreTheOnesThatHelpManualAndPagesName)
{
    std::string manual = manualText();
    std::erase(manual, '\\');
    for (const Option& option : optionTable()) {
        EXPECT_EQ(helpText().find("  " + option.usage() + " ") != std::string::npos, !option.group.empty());
        EXPECT_EQ(manual.find("\n.B " + option.usage() + "\n") != std::string::npos, !option.group.empty());
    }
    const std::regex name("(?:^|[^-a-z])--([a-z](?:[-.a-z0-9]*[a-z0-9])?)"),
        others("cmake|ctest|test\\.sh|check\\.sh|apt |tar |\\$");
    int count = 0;
    for (const char* page : {"README.md", "CHANGELOG.md", "CONTRIBUTING.md", "docs/architecture.md",
             "packaging/quackdash.6.in", "packaging/quackdash.desktop"}) {
        std::ifstream text(std::string(QUACKDASH_SOURCE) + page);
        for (std::string line; std::getline(text, line);) {
            std::erase(line, '\\');
            if (std::regex_search(line, others)) continue; // of other programs
            for (std::sregex_iterator found(line.begin(), line.end(), name), end; found != end; ++found, ++count)
                EXPECT_NE(findOption(found->str(1)), nullptr) << page << " names --" << found->str(1);
        }
    }
    EXPECT_GT(count, 5);
}

TEST_F(OptionsTest, AreCompletedByBash)
{
    const std::string completion = folder.write("completion", completionText());
    const std::pair<const char*, const char*> rows[] = {
        {"--eff", "--effects-volume"},
        {"--no-mute-", "--no-mute-unfocused"},
        {"--join pad", "pad1 pad2 pad3 pad4"},
        {"--seed = r", "random"},
        {"--data dat", "data#1"},
        {"--volume 1", ""},
        {"--pad4.s", "--pad4.shoot --pad4.start"},
        {"--wasd.left rightb", "rightbracket"},
        {"--pad2.shoot +r", "+rightx +righty"},
        {"--print", ""},
    };
    for (const auto& [typed, completed] : rows) {
        const std::string script = "source \"$0\"; COMP_WORDS=(quackdash " + std::string(typed) +
            "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _quackdash; echo \"${COMPREPLY[*]}\"";
        ChildProcess bash({{"bash", "-c", script, completion}, folder.path() / "bash.txt"});
        EXPECT_EQ(bash.waitForExit(), 0);
        EXPECT_EQ(bash.output(), completed + std::string("\n")) << typed;
    }
}

} // namespace
