#include "app/ShownKeys.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace {

/// Return a word as it is shown: "K", "Leftshift".
std::string shown(std::string word)
{
    word[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(word[0])));
    return word;
}

std::string listed(const ControlOptions::Words& device, Buttons buttons)
{
    std::string list;
    for (const InputDevice::Button button : buttons) list += (list.empty() ? "" : ", ") + shown(device[button]);
    return list;
}

} // namespace

std::string shownKeys(const ControlOptions& controls, std::size_t half, Buttons buttons, const std::string& usual)
{
    const std::string list = listed(controls.halves.at(half), buttons);
    return list == listed(ControlOptions().halves.at(half), buttons) ? usual : list;
}

std::string shownPadButtons(const ControlOptions& controls, Buttons buttons, const std::string& usual)
{
    const std::string usualList = listed(ControlOptions::kUsualButtons, buttons);
    std::vector<std::string> lists;
    for (const ControlOptions::Words& pad : controls.pads) {
        const std::string list = listed(pad, buttons);
        lists.push_back(list == usualList ? usual : list);
    }
    if (std::count(lists.begin(), lists.end(), lists[0]) == std::ssize(lists)) return lists[0];

    std::string all = std::find(lists.begin(), lists.end(), usual) == lists.end() ? "" : usual;
    for (std::size_t pad = 0; pad < lists.size(); ++pad)
        if (lists[pad] != usual) all += (all.empty() ? "" : ", ") + std::to_string(pad + 1) + ":" + lists[pad];
    return all;
}

std::string shownStart(const ControlOptions& controls, const std::string& usual)
{
    const std::string usualButton = shown(ControlOptions::kUsualButtons[InputDevice::kStart]);
    const std::string first = shownKeys(controls, 0, {InputDevice::kStart}, "");
    const std::string second = shownKeys(controls, 1, {InputDevice::kStart}, "");
    const std::string pads = shownPadButtons(controls, {InputDevice::kStart}, usualButton);
    if (first.empty() && second.empty() && pads == usualButton) return usual;
    const std::string usualKey = shown(ControlOptions().halves[0][InputDevice::kStart]);
    return (first.empty() ? usualKey : first) + (second.empty() ? "" : ", " + second) + ", " + pads;
}
