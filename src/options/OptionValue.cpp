#include "options/OptionValue.h"

#include <charconv>
#include <filesystem>

OptionValue toggle(Place<bool> place)
{
    const auto read = [=](Options& options, const std::string& given) {
        if (given != "true" && given != "false") return false;
        place.set(options, given == "true");
        return true;
    };
    const auto write = [=](const Options& options) -> std::string { return place.get(options) ? "true" : "false"; };
    return {.read = read, .write = write, .expected = "true or false", .hasOpposite = true};
}

OptionValue switchOff(Place<bool> place)
{
    const auto read = [=](Options& options, const std::string&) {
        place.set(options, false);
        return true;
    };
    return {.read = read, .write = {}, .expected = "no value", .inFile = false};
}

OptionValue number(Place<int> place, int least, int most)
{
    const auto parse = [=](const std::string& given) -> std::optional<int> {
        int value = 0;
        const char* const end = given.data() + given.size();
        const auto [stop, error] = std::from_chars(given.data(), end, value);
        if (error != std::errc() || stop != end || value < least || value > most) return std::nullopt;
        return value;
    };
    const auto format = [](int value) { return std::to_string(value); };
    return parsed(place, "N", std::to_string(least) + " to " + std::to_string(most), parse, format);
}

OptionValue text(Place<std::string> place, const std::string& placeholder, const std::string& expected)
{
    const auto same = [](const std::string& given) { return std::optional(given); };
    return parsed(place, placeholder, expected, same, [](const std::string& value) { return value; });
}

OptionValue file(Place<std::string> place, const std::string& word)
{
    const auto parse = [=](const std::string& given) -> std::optional<std::string> {
        if (given.empty() || given == word) return given;
        return std::filesystem::absolute(given).string();
    };
    const auto same = [](const std::string& value) { return value; };
    OptionValue value = parsed(place, word.empty() ? "FILE" : "FILE|" + word,
        word.empty() ? "a file" : "a file or " + word, parse, same);
    value.isPlain = true;
    value.completion = "-f";
    if (!word.empty()) value.completion += " -W " + word;
    return value;
}

OptionValue request(Request request)
{
    const auto read = [=](Options& options, const std::string&) {
        options.program.request = request;
        return true;
    };
    return {.read = read, .write = {}, .expected = "no value", .inFile = false};
}

std::vector<std::string> splitAtCommas(const std::string& text)
{
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t comma = std::min(text.find(',', begin), text.size());
        parts.push_back(text.substr(begin, comma - begin));
        begin = comma + 1;
    }
    return parts;
}

std::string joined(const std::vector<std::string>& words, const std::string& between)
{
    std::string all;
    for (const std::string& word : words) all += (all.empty() ? "" : between) + word;
    return all;
}
