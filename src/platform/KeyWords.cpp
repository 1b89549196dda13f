#include "platform/KeyWords.h"

#include <GLFW/glfw3.h>

#include <map>

namespace {

using KeysByWord = std::map<std::string, int>;

const KeysByWord kNamedKeys = {
    {"apostrophe", GLFW_KEY_APOSTROPHE},
    {"backslash", GLFW_KEY_BACKSLASH},
    {"backspace", GLFW_KEY_BACKSPACE},
    {"capslock", GLFW_KEY_CAPS_LOCK},
    {"comma", GLFW_KEY_COMMA},
    {"delete", GLFW_KEY_DELETE},
    {"down", GLFW_KEY_DOWN},
    {"end", GLFW_KEY_END},
    {"enter", GLFW_KEY_ENTER},
    {"equal", GLFW_KEY_EQUAL},
    {"escape", GLFW_KEY_ESCAPE},
    {"graveaccent", GLFW_KEY_GRAVE_ACCENT},
    {"home", GLFW_KEY_HOME},
    {"insert", GLFW_KEY_INSERT},
    {"kpadd", GLFW_KEY_KP_ADD},
    {"kpdecimal", GLFW_KEY_KP_DECIMAL},
    {"kpdivide", GLFW_KEY_KP_DIVIDE},
    {"kpenter", GLFW_KEY_KP_ENTER},
    {"kpequal", GLFW_KEY_KP_EQUAL},
    {"kpmultiply", GLFW_KEY_KP_MULTIPLY},
    {"kpsubtract", GLFW_KEY_KP_SUBTRACT},
    {"left", GLFW_KEY_LEFT},
    {"leftalt", GLFW_KEY_LEFT_ALT},
    {"leftbracket", GLFW_KEY_LEFT_BRACKET},
    {"leftcontrol", GLFW_KEY_LEFT_CONTROL},
    {"leftshift", GLFW_KEY_LEFT_SHIFT},
    {"leftsuper", GLFW_KEY_LEFT_SUPER},
    {"menu", GLFW_KEY_MENU},
    {"minus", GLFW_KEY_MINUS},
    {"numlock", GLFW_KEY_NUM_LOCK},
    {"pagedown", GLFW_KEY_PAGE_DOWN},
    {"pageup", GLFW_KEY_PAGE_UP},
    {"pause", GLFW_KEY_PAUSE},
    {"period", GLFW_KEY_PERIOD},
    {"printscreen", GLFW_KEY_PRINT_SCREEN},
    {"right", GLFW_KEY_RIGHT},
    {"rightalt", GLFW_KEY_RIGHT_ALT},
    {"rightbracket", GLFW_KEY_RIGHT_BRACKET},
    {"rightcontrol", GLFW_KEY_RIGHT_CONTROL},
    {"rightshift", GLFW_KEY_RIGHT_SHIFT},
    {"rightsuper", GLFW_KEY_RIGHT_SUPER},
    {"scrolllock", GLFW_KEY_SCROLL_LOCK},
    {"semicolon", GLFW_KEY_SEMICOLON},
    {"slash", GLFW_KEY_SLASH},
    {"space", GLFW_KEY_SPACE},
    {"tab", GLFW_KEY_TAB},
    {"up", GLFW_KEY_UP},
    {"world1", GLFW_KEY_WORLD_1}, // beside the left shift key of most European keyboards
    {"world2", GLFW_KEY_WORLD_2},
};

KeysByWord makeKeys()
{
    KeysByWord keys = kNamedKeys;
    for (char letter = 'a'; letter <= 'z'; ++letter) keys[{letter}] = GLFW_KEY_A + (letter - 'a');
    for (int digit = 0; digit <= 9; ++digit) {
        keys[std::to_string(digit)] = GLFW_KEY_0 + digit;
        keys["kp" + std::to_string(digit)] = GLFW_KEY_KP_0 + digit;
    }
    for (int key = GLFW_KEY_F1; key <= GLFW_KEY_F25; ++key) keys["f" + std::to_string(key - GLFW_KEY_F1 + 1)] = key;
    return keys;
}

const KeysByWord& keys()
{
    static const KeysByWord all = makeKeys();
    return all;
}

} // namespace

int keyOf(const std::string& word)
{
    const auto found = keys().find(word);
    return found == keys().end() ? kNoKey : found->second;
}

std::vector<std::string> keyWords()
{
    std::vector<std::string> words;
    for (const auto& key : keys()) words.push_back(key.first);
    return words;
}
