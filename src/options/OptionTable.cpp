#include "options/OptionTable.h"

#include "match/PlayerRegistration.h"
#include "platform/DataFolder.h"

#include <charconv>
#include <filesystem>

namespace {

using Seed = std::optional<unsigned>;

OptionValue seed(Place<Seed> place)
{
    const auto parse = [](const std::string& given) -> std::optional<Seed> {
        unsigned value = 0;
        const char* const end = given.data() + given.size();
        const auto [stop, error] = std::from_chars(given.data(), end, value);
        if (given == "random") return Seed();
        if (error != std::errc() || stop != end) return std::nullopt;
        return value;
    };
    const auto format = [](const Seed& value) { return value ? std::to_string(*value) : "random"; };
    OptionValue value = parsed(place, "N|random", "0 to 4294967295 or random", parse, format);
    value.completion = "-W random";
    return value;
}

OptionValue dataFolder(Place<std::string> place)
{
    const auto parse = [](const std::string& given) -> std::optional<std::string> {
        if (given.empty()) return given;
        if (!holdsData(given)) return std::nullopt;
        return std::filesystem::absolute(given).string();
    };
    const auto format = [](const std::string& value) { return value; };
    OptionValue value = parsed(place, "FOLDER", "a folder that holds Shader and Textures", parse, format);
    value.completion = "-d";
    return value;
}

OptionValue onCommandLineOnly(OptionValue value)
{
    value.inFile = false;
    return value;
}

const Words<JoinDevice> kJoinDevices = {
    {"arrows", JoinDevice::Arrows},
    {"wasd", JoinDevice::Wasd},
    {"pad1", JoinDevice::Pad1},
    {"pad2", JoinDevice::Pad2},
    {"pad3", JoinDevice::Pad3},
    {"pad4", JoinDevice::Pad4},
};

std::vector<Option> makeTable()
{
    using Program = ProgramOptions;
    using Sound = SoundOptions;
    using Start = StartOptions;
    constexpr int kMostComputers = PlayerRegistration::kMaxComputerPlayers;
    // clang-format off
    return {
        {"Information", "help", 'h', request(Request::Help), "show the options"},
        {"Information", "version", 'v', request(Request::Version),
            "name the versions of game and libraries, and the data folder"},
        {"Information", "list-devices", 0, request(Request::ListDevices), "name monitors, sound devices and game-pads"},

        {"Settings", "config", 0, onCommandLineOnly(file({&Options::program, &Program::config})),
            "read the settings from another file"},
        {"Settings", "write-settings", 0, request(Request::WriteSettings),
            "write all options, as they are set now, to the settings file"},

        {"Window", "keep-awake", 0, toggle({&Options::screenSaver, &ScreenSaverOptions::keepAwake}),
            "keep the screen from going dark while a match runs"},

        {"Sound", "volume", 0, number({&Options::sound, &Sound::volume}, 0, 100), "how loud everything is"},
        {"Sound", "music-volume", 0, number({&Options::sound, &Sound::musicVolume}, 0, 100), "how loud the music is"},
        {"Sound", "effects-volume", 0, number({&Options::sound, &Sound::effectsVolume}, 0, 100),
            "how loud engines, shots and ducks are"},
        {"Sound", "mute", 0, toggle({&Options::sound, &Sound::mute}), "play without any sound"},
        {"Sound", "mute-unfocused", 0, toggle({&Options::sound, &Sound::muteUnfocused}),
            "be silent while another window has the keys"},
        {"Sound", "sound-device", 0, text({&Options::sound, &Sound::device}, "NAME", "as --list-devices names it"),
            "where the sound goes"},

        {"Start", "computer-players", 0, number({&Options::start, &Start::computerPlayers}, 0, kMostComputers),
            "how many computer players join at once"},
        {"Start", "join", 0, listOf({&Options::start, &Start::join}, "DEVICES", kJoinDevices),
            "who joins at once, with commas between"},
        {"Start", "start", 0, toggle({&Options::start, &Start::atOnce}),
            "go straight into the match with those who join at once"},
        {"Start", "seed", 0, seed({&Options::start, &Start::seed}), "which places cars come back to"},
        {"Start", "data", 0, dataFolder({&Options::program, &Program::dataFolder}),
            "where shaders, pictures, models and sounds are"},
        {"Start", "log-file", 0, file({&Options::program, &Program::logFile}, "auto"),
            "write the log there, not on the console; auto: among the user's own files"},

        {"", "print-manual", 0, request(Request::PrintManual), ""},
        {"", "print-completion", 0, request(Request::PrintCompletion), ""},
    };
    // clang-format on
}

} // namespace

std::string Option::usage() const
{
    std::string usage = letter ? std::string("-") + letter + ", --" : "--";
    if (value.hasOpposite) usage += "[no-]";
    usage += name;
    if (!value.placeholder.empty()) usage += " " + value.placeholder;
    return usage;
}

std::string Option::description() const
{
    std::string all = help;
    if (!value.placeholder.empty() && !value.isPlain) all += ": " + value.expected;
    const std::string byDefault = value.write ? value.write(Options()) : "";
    if (!byDefault.empty() && byDefault != "false") all += " (" + (byDefault == "true" ? "on" : byDefault) + ")";
    return all;
}

const std::vector<Option>& optionTable()
{
    static const std::vector<Option> table = makeTable();
    return table;
}

const Option* findOption(const std::string& name)
{
    for (const Option& option : optionTable())
        if (option.name == name || (option.value.hasOpposite && "no-" + option.name == name)) return &option;
    return nullptr;
}
