#include "options/ControlRows.h"

#include "input/PadInput.h"
#include "platform/KeyWords.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace {

using Words = ControlOptions::Words;

constexpr const char* kGroup = "Keys and game-pads";
constexpr const char* kKeyExample = "a free key such as k, 7, leftshift or f10";
constexpr const char* kPadExample = "a button such as x, rightshoulder, dpup or +rightx";
constexpr const char* kRivalKeys = "keys";

// What the game itself reads whatever the options say.
const std::set<std::string> kOwn{"escape", "space", "f1", "f2", "f3", "f4", "f5", "f6", "f7", "f8", "f9", "f11", "f12"};

/// By InputDevice::Button.
struct Function {
    const char* name;
    const char* help;
};
constexpr Function kFunctions[InputDevice::kButtonCount] = {
    {"accelerate", "accelerate"},
    {"brake", "brake, then reverse,"},
    {"left", "steer left"},
    {"right", "steer right"},
    {"shoot", "shoot, or join,"},
    {"handbrake", "pull the hand brake"},
    {"start", "start the match"},
};

std::vector<std::string> freeKeyWords()
{
    std::vector<std::string> words = keyWords();
    std::erase_if(words, [](const std::string& word) { return kOwn.contains(word); });
    return words;
}

/// One of these words, in whatever letters; none of those that its rivals have. mayBeNone: or nothing.
OptionValue word(Place<std::string> place, const std::string& placeholder, const std::string& expected,
    const std::vector<std::string>& words, const std::string& rivals, bool mayBeNone = false)
{
    const auto parse = [=](std::string given) -> std::optional<std::string> {
        for (char& c : given) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        const bool isKnown = std::find(words.begin(), words.end(), given) != words.end();
        return isKnown || (mayBeNone && given.empty()) ? std::optional(given) : std::nullopt;
    };
    const auto same = [](const std::string& value) { return value; };
    OptionValue value = parsed(place, placeholder, expected, parse, same);
    value.completion = "-W '" + joined(words, " ") + "'";
    value.rivals = rivals;
    return value;
}

OptionValue key(Place<std::string> place, bool mayBeNone = false)
{
    return word(place, "KEY", kKeyExample, freeKeyWords(), kRivalKeys, mayBeNone);
}

/// Add a row for each thing that a device does. wordsIn: gives the place of its words in options.
template <class WordsIn>
void addDevice(std::vector<Option>& rows, const std::string& name, const std::string& people,
    const OptionFamily& family, WordsIn wordsIn, const std::function<OptionValue(Place<std::string>)>& kind)
{
    for (std::size_t button = 0; button < InputDevice::kButtonCount; ++button) {
        const auto get = [=](const Options& options) -> const std::string& { return (*wordsIn(options))[button]; };
        const auto set = [=](Options& options, std::string value) { (*wordsIn(options))[button] = std::move(value); };
        const Function& function = kFunctions[button];
        rows.push_back({kGroup, name + "." + function.name, 0, kind(Place<std::string>(get, set)),
            std::string(function.help) + " with " + people, &family});
    }
}

std::string listed(const Words& words)
{
    return " (" + joined({words.begin(), words.end()}, ", ") + ")";
}

std::string functionNames()
{
    std::vector<std::string> names;
    for (const Function& function : kFunctions) names.emplace_back(function.name);
    return joined(names, ", ");
}

void addHalves(std::vector<Option>& rows)
{
    constexpr const char* kPeople[] = {"the arrow half", "the WASD half"};
    static const OptionFamily families[] = {
        {"--arrows.FUNCTION KEY", "FUNCTION: " + functionNames() + listed(ControlOptions().halves[0])},
        {"--wasd.FUNCTION KEY", "likewise" + listed(ControlOptions().halves[1])},
    };
    for (std::size_t half = 0; half < ControlOptions().halves.size(); ++half) {
        const auto wordsIn = [=](auto& options) { return &options.controls.halves[half]; };
        const auto kind = [](const Place<std::string>& place) { return key(place); };
        addDevice(rows, half == 0 ? "arrows" : "wasd", kPeople[half], families[half], wordsIn, kind);
    }
}

void addPads(std::vector<Option>& rows)
{
    static const OptionFamily family{
        "--padN.FUNCTION BUTTON", "likewise, N: 1 to 4" + listed(ControlOptions::kUsualButtons)};
    for (std::size_t pad = 0; pad < ControlOptions().pads.size(); ++pad) {
        const std::string number = std::to_string(pad + 1), name = "pad" + number;
        const auto wordsIn = [=](auto& options) { return &options.controls.pads[pad]; };
        const auto kind = [=](const Place<std::string>& place) {
            return word(place, "BUTTON", kPadExample, padWords(), name);
        };
        addDevice(rows, name, "game-pad " + number, family, wordsIn, kind);
    }
}

} // namespace

std::vector<Option> controlRows()
{
    using Controls = ControlOptions;
    using Keys = KeyOptions;
    std::vector<Option> rows;
    addHalves(rows);
    addPads(rows);
    // clang-format off
    rows.insert(rows.end(), {
        {kGroup, "key.screenshot", 0, key({&Options::keys, &Keys::screenshot}, true),
            "save a picture of the window"},
        {kGroup, "key.fullscreen", 0, key({&Options::keys, &Keys::fullscreen}, true),
            "fill the monitor with the window, or no longer"},
        {kGroup, "key.mark", 0, key({&Options::keys, &Keys::mark}, true), "mark a moment in the recording"},
        {kGroup, "rumble", 0, number({&Options::controls, &Controls::rumble}, 0, 100), "how strongly game-pads rumble"},
        {kGroup, "deadzone", 0, number({&Options::controls, &Controls::deadZone}, 0, 100),
            "how much of a stick's way counts as rest, in percent"},
    });
    // clang-format on
    return rows;
}
