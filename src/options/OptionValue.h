#pragma once

#include "options/Options.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

template <class Base, class T>
using MemberOf = T Base::*;

/// A member of Options, given as the member of Options that holds its struct and the member of that struct.
template <class T>
struct Place {
    Place(std::function<const T&(const Options&)> getter, std::function<void(Options&, T)> setter)
        : get(std::move(getter)), set(std::move(setter))
    {
    }

    template <class Base, class Struct>
    Place(MemberOf<Base, Struct> part, MemberOf<Struct, T> member)
        : get([=](const Options& options) -> const T& { return options.*part.*member; }),
          set([=](Options& options, T value) { options.*part.*member = std::move(value); })
    {
    }

    std::function<const T&(const Options&)> get;
    std::function<void(Options&, T)> set;
};

/// What an option takes and where it is kept: what the kinds below have in common.
struct OptionValue {
    /// Take in a text. False, and nothing changed, when it is not what is expected.
    std::function<bool(Options&, const std::string&)> read;
    std::function<std::string(const Options&)> write; ///< what read() would take in again
    std::string expected;                             ///< in words, as in "0 to 100"
    std::string placeholder = {};                     ///< in capitals; empty for what stands alone, as --mute does
    std::string completion = {};                      ///< arguments of bash's compgen that list what can follow
    bool isRepeatable = false;                        ///< what is given again comes after a comma
    bool isPlain = false;                             ///< the placeholder says all that is expected
    bool hasOpposite = false;                         ///< --no-NAME is there too
    bool inFile = true;                               ///< may stand in the settings file
    std::string rivals = {}; ///< no two of the options that share this word may be set to the same; empty: none
};

/// On, or off by --no-NAME.
OptionValue toggle(Place<bool> place);

/// Another name for the --no-NAME of a switch in the same place; on the command line only.
OptionValue switchOff(Place<bool> place);

/// A whole number between two bounds, inclusive.
OptionValue number(Place<int> place, int least, int most);

/// A text as it stands.
OptionValue text(Place<std::string> place, const std::string& placeholder, const std::string& expected);

/// The path of a file that need not be there, kept as an absolute one; `word`, if any, and nothing stay as they are.
OptionValue file(Place<std::string> place, const std::string& word = {});

/// Something else for the program to do than to play; on the command line only.
OptionValue request(Request request);

/// A value of any other type. `parse` makes nothing of a text that is not what is expected.
template <class T, class Parse, class Format>
OptionValue parsed(Place<T> place, const std::string& placeholder, const std::string& expected, Parse parse,
    Format format)
{
    const auto read = [=](Options& options, const std::string& given) {
        std::optional<T> value = parse(given);
        if (value) place.set(options, std::move(*value));
        return value.has_value();
    };
    const auto write = [=](const Options& options) { return format(place.get(options)); };
    return {.read = read, .write = write, .expected = expected, .placeholder = placeholder};
}

/// Words and what they stand for.
template <class T>
using Words = std::vector<std::pair<std::string, T>>;

std::vector<std::string> splitAtCommas(const std::string& text); ///< nothing of an empty one
std::string joined(const std::vector<std::string>& words, const std::string& between);

/// One of these words.
template <class T>
OptionValue oneOf(Place<T> place, const Words<T>& words)
{
    std::vector<std::string> names;
    for (const auto& word : words) names.push_back(word.first);
    const auto parse = [=](const std::string& given) -> std::optional<T> {
        const auto word = std::find_if(words.begin(), words.end(), [&](const auto& w) { return w.first == given; });
        return word == words.end() ? std::nullopt : std::optional<T>(word->second);
    };
    const auto format = [=](const T& value) {
        return std::find_if(words.begin(), words.end(), [&](const auto& w) { return w.second == value; })->first;
    };
    OptionValue value = parsed(place, joined(names, "|"), joined(names, ", "), parse, format);
    value.isPlain = true;
    value.completion = "-W '" + joined(names, " ") + "'";
    return value;
}

/// Some of these words in any order, each once, with commas between them; or nothing.
template <class T>
OptionValue listOf(Place<std::vector<T>> place, const std::string& placeholder, const Words<T>& words)
{
    std::vector<std::string> names;
    for (const auto& word : words) names.push_back(word.first);
    const auto parse = [=](const std::string& given) -> std::optional<std::vector<T>> {
        std::vector<T> list;
        for (const std::string& name : splitAtCommas(given)) {
            const auto word = std::find_if(words.begin(), words.end(), [&](const auto& w) { return w.first == name; });
            if (word == words.end() || std::count(list.begin(), list.end(), word->second) > 0) return std::nullopt;
            list.push_back(word->second);
        }
        return list;
    };
    const auto format = [=](const std::vector<T>& list) {
        std::vector<std::string> chosen;
        chosen.reserve(list.size());
        for (const T& value : list)
            chosen.push_back(std::find_if(words.begin(), words.end(), [&](const auto& w) {
                return w.second == value;
            })->first);
        return joined(chosen, ",");
    };
    OptionValue value = parsed(place, placeholder, joined(names, ", ") + ", each once", parse, format);
    value.completion = "-W '" + joined(names, " ") + "'";
    return value;
}
