#include "options/Comfort.h"

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
        if (options.keys.screenshot.empty()) options.keys.screenshot = "f10"; // unless something else is to have it
        return true;
    };
    return {.read = read, .write = {}, .expected = "no value", .inFile = false};
}
