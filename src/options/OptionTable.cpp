#include "options/OptionTable.h"

#include "match/PlayerRegistration.h"
#include "options/Comfort.h"
#include "options/ControlRows.h"
#include "platform/DataFolder.h"
#include "render/TextRenderer.h"
#include "replay/RecordingLimits.h"

#include <charconv>
#include <filesystem>
#include <iomanip>
#include <sstream>

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

OptionValue folder(Place<std::string> place)
{
    OptionValue value = file(place);
    value.placeholder = "FOLDER";
    value.completion = "-d";
    return value;
}

constexpr WindowSize kMost{16384, 16384}; // of many a driver; the one at hand may take less

OptionValue windowSize(Place<WindowSize> place)
{
    const auto format = [](const WindowSize& size) {
        return std::to_string(size.width) + "x" + std::to_string(size.height);
    };
    const auto parse = [](const std::string& given) -> std::optional<WindowSize> {
        WindowSize size;
        const char* const end = given.data() + given.size();
        const auto [times, widthError] = std::from_chars(given.data(), end, size.width);
        if (widthError != std::errc() || times == end || *times != 'x') return std::nullopt;
        const auto [stop, heightError] = std::from_chars(times + 1, end, size.height);
        if (heightError != std::errc() || stop != end) return std::nullopt;
        const bool isTooSmall = size.width < kLeastWindow.width || size.height < kLeastWindow.height;
        if (isTooSmall || size.width > kMost.width || size.height > kMost.height) return std::nullopt;
        return size;
    };
    const std::string expected = format(kLeastWindow) + " to " + format(kMost);
    OptionValue value = parsed(place, "WIDTHxHEIGHT", expected, parse, format);
    value.completion = "-W '640x480 1024x768 1280x720 1920x1080 2560x1440'";
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

/// Names of devices and of the people there; those that are not mentioned stay as they are.
OptionValue names(Place<PlayerNames> place, const Words<JoinDevice>& devices)
{
    const auto read = [=](Options& options, const std::string& given) {
        PlayerNames all = place.get(options);
        for (const std::string& entry : splitAtCommas(given)) {
            const std::size_t end = std::min(entry.find('='), entry.size());
            const auto device = std::find_if(devices.begin(), devices.end(),
                [&](const auto& word) { return word.first == entry.substr(0, end); });
            if (end == entry.size() || device == devices.end()) return false;
            const std::string name = entry.substr(end + 1);
            if (name.size() > kLongestName || !TextRenderer::canWrite(name)) return false;
            all.at(static_cast<std::size_t>(device->second)) = name;
        }
        place.set(options, all);
        return true;
    };
    const auto write = [=](const Options& options) {
        std::vector<std::string> entries;
        for (const auto& [word, device] : devices) {
            const std::string& name = place.get(options).at(static_cast<std::size_t>(device));
            if (!name.empty()) entries.push_back(joined({word, name}, "="));
        }
        return joined(entries, ",");
    };
    return {.read = read,
        .write = write,
        .expected = "DEVICE=NAME as in pad1=Granny, a device of --join and up to " + std::to_string(kLongestName) +
            " letters without accents",
        .placeholder = "DEVICE=NAME",
        .isRepeatable = true};
}

std::optional<PlayerColours> hexColours(const std::string& given)
{
    PlayerColours colours;
    const std::vector<std::string> parts = splitAtCommas(given);
    if (parts.size() != colours.size()) return std::nullopt;
    for (std::size_t i = 0; i < colours.size(); ++i) {
        constexpr std::size_t kDigits = 6;
        constexpr int kBase = 16, kChannel = 255;
        const char* const begin = parts[i].data() + (parts[i].starts_with('#') ? 1 : 0);
        const char* const end = parts[i].data() + parts[i].size();
        int value = -1;
        const auto [stop, error] = std::from_chars(begin, end, value, kBase);
        if (error != std::errc() || stop != end || end - begin != kDigits || value < 0) return std::nullopt;
        const glm::vec3 rgb(value >> 16, value >> 8 & kChannel, value & kChannel);
        colours[i] = glm::vec4(rgb / static_cast<float>(kChannel), 1);
    }
    return colours;
}

OptionValue colours(Place<PlayerColours> place)
{
    const auto parse = [](const std::string& given) -> std::optional<PlayerColours> {
        if (given == "default") return kDefaultColours;
        if (given == "safe") return kSafeColours;
        return hexColours(given);
    };
    const auto format = [](const PlayerColours& value) -> std::string {
        if (value == kDefaultColours) return "default";
        if (value == kSafeColours) return "safe";
        std::ostringstream list;
        for (const glm::vec4& colour : value) {
            const glm::ivec3 rgb(glm::round(glm::vec3(colour) * 255.0f));
            list << (list.tellp() > 0 ? "," : "") << std::hex << std::setfill('0');
            for (int i = 0; i < 3; ++i) list << std::setw(2) << rgb[i];
        }
        return list.str();
    };
    OptionValue value =
        parsed(place, "COLOURS", "default, safe, or six as in ff8800 with commas between", parse, format);
    value.completion = "-W 'default safe'";
    return value;
}

const Words<Language> kLanguages = {{"de", Language::De}, {"en", Language::En}, {"auto", Language::Auto}};

std::vector<Option> rows()
{
    using Text = TextOptions;
    using Program = ProgramOptions;
    using Sound = SoundOptions;
    using Replay = ReplayOptions;
    using Start = StartOptions;
    constexpr int kTopSpeed = 16;
    using Window = WindowOptions;
    constexpr int kMostComputers = PlayerRegistration::kMaxComputerPlayers;
    // clang-format off
    return {
        {"Information", "help", 'h', request(Request::Help), "show the options"},
        {"Information", "version", 'v', request(Request::Version),
            "name the versions of game and libraries, and the data folder"},
        {"Information", "list-devices", 0, request(Request::ListDevices), "name monitors, sound devices and game-pads"},

        {"Settings", "comfort", 0, comfort(),
            "full screen, --wide-views, --own-labels, --hint, --keep-awake, --mute-unfocused, --no-culled-text, "
            "--language auto, --key.screenshot f10; what stands after it counts"},
        {"Settings", "config", 0, onCommandLineOnly(file({&Options::program, &Program::config})),
            "read the settings from another file"},
        {"Settings", "write-settings", 0, request(Request::WriteSettings),
            "write all options, as they are set now, to the settings file"},

        {"Window", "size", 0, windowSize({&Options::window, &Window::size}), "how large the window is, in pixels"},
        {"Window", "fullscreen", 'f', toggle({&Options::window, &Window::fullscreen}), "fill the monitor"},
        {"Window", "windowed", 'w', switchOff({&Options::window, &Window::fullscreen}),
            "leave room for other windows, as --no-fullscreen"},
        {"Window", "monitor", 0, text({&Options::window, &Window::monitor}, "NAME", "as --list-devices names it"),
            "where the window opens, and what it fills"},
        {"Window", "resizable", 0, toggle({&Options::window, &Window::resizable}), "let the mouse change the size"},
        {"Window", "vsync", 0, toggle({&Options::window, &Window::vsync}), "have frames wait for the monitor"},
        {"Window", "wide-views", 0, toggle({&Options::view, &ViewOptions::wide}),
            "show more to the sides where a view is wide, and less where it is tall, instead of stretching it"},
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

        {"Recording", "record", 0, file({&Options::replay, &Replay::record}, "auto"),
            "record the match there; auto: the last ten, among the user's own files"},
        {"Recording", "replay", 0, onCommandLineOnly(file({&Options::replay, &Replay::replay})),
            "tell a recorded match again"},
        {"Recording", "speed", 0, onCommandLineOnly(number({&Options::replay, &Replay::speed}, 1, kTopSpeed)),
            "how many times as fast"},
        {"Recording", "pictures", 0, onCommandLineOnly(folder({&Options::replay, &Replay::pictures})),
            "write a picture of each pass of the replay there"},
        {"Recording", "headless", 0, onCommandLineOnly(toggle({&Options::replay, &Replay::headless})),
            "without a window, as fast as it goes: the replay, or a match among computer players"},
        {"Recording", "passes", 0, onCommandLineOnly(number({&Options::replay, &Replay::passes}, 1, kMostPasses)),
            "how long that match is, in passes of 1/120 s"},
        {"Text", "language", 0, oneOf({&Options::text, &Text::language}, kLanguages),
            "what the screen is written in; auto: the language of the locale"},
        {"Text", "text-scale", 0, number({&Options::text, &Text::scale}, 100, 300),
            "how large text is, in percent, where there is room"},
        {"Text", "own-labels", 0, toggle({&Options::text, &Text::ownLabels}),
            "write each player's text into the player's own view, and a number above each car"},
        {"Text", "culled-text", 0, toggle({&Options::text, &Text::culledText}),
            "write at the lower left how many models each view leaves out"},
        {"Text", "hint", 0, toggle({&Options::text, &Text::hint}),
            "say on the first screen how to join until somebody has"},
        {"Text", "name", 0, names({&Options::start, &Start::names}, kJoinDevices),
            "who plays there; again or with commas for more"},

        {"Colours", "colours", 0, colours({&Options::colours, &ColourOptions::people}),
            "of the people's ducks and balls; safe ones are told apart by colour-blind people too"},

        {"", "print-manual", 0, request(Request::PrintManual), ""},
        {"", "print-completion", 0, request(Request::PrintCompletion), ""},
    };
    // clang-format on
}

std::vector<Option> makeTable()
{
    std::vector<Option> table = rows();
    for (Option& row : controlRows()) table.push_back(std::move(row));
    return table;
}

} // namespace

std::string Option::usage() const
{
    if (family) return family->usage;
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

std::vector<const Option*> shownOptions()
{
    std::vector<const Option*> shown;
    const OptionFamily* last = nullptr;
    for (const Option& option : optionTable()) {
        const bool isFirst = !option.family || option.family != last;
        if (isFirst && !option.group.empty()) shown.push_back(&option);
        last = option.family;
    }
    return shown;
}

const Option* findOption(const std::string& name)
{
    for (const Option& option : optionTable())
        if (option.name == name || (option.value.hasOpposite && "no-" + option.name == name)) return &option;
    return nullptr;
}
