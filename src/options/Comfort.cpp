#include "options/Comfort.h"

namespace {

constexpr const char* kPictureKey = "f10";

bool isTaken(const Options& options, const std::string& key)
{
    if (options.keys.fullscreen == key) return true;
    return std::any_of(options.controls.halves.begin(), options.controls.halves.end(),
        [&](const auto& half) { return std::find(half.begin(), half.end(), key) != half.end(); });
}

} // namespace

OptionValue comfort()
{
    const auto read = [](Options& options, const std::string&) {
        options.window.fullscreen = true;
        options.view.wide = true;
        options.screenSaver.keepAwake = true;
        options.sound.muteUnfocused = true;
        options.text.language = Language::Auto;
        options.text.ownLabels = true;
        options.text.hint = true;
        options.text.culledText = false;
        if (options.keys.screenshot.empty() && !isTaken(options, kPictureKey)) options.keys.screenshot = kPictureKey;
        return true;
    };
    return {.read = read, .write = {}, .expected = "no value", .inFile = false};
}
