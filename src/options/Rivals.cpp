#include "options/Rivals.h"

#include "options/OptionTable.h"

namespace fs = std::filesystem;

namespace {

constexpr int kNowhere = 0; // by default: before every line

int placeOf(const Option& option, const SetWhere& where)
{
    const auto found = where.find(option.name);
    return found == where.end() ? kNowhere : found->second;
}

/// Return whether an option has its value by --comfort alone, which takes what is free.
bool isSuggested(const Option& option, const Options& options, const SetWhere& where)
{
    return placeOf(option, where) == kNowhere && option.value.write(options) != option.value.write(Options());
}

Rivalry describe(const Option& loser, const Option& other, const std::string& value, const SetWhere& where,
    const fs::path& file)
{
    const int place = placeOf(loser, where), otherPlace = placeOf(other, where);
    const auto lineOfFile = [&](int line) { return file.string() + ":" + std::to_string(line); };
    std::string fault = place == kOnCommandLine ? "--" : lineOfFile(place) + ": ";
    fault += loser.name + ": \"" + value + "\" is taken by ";
    if (otherPlace == kOnCommandLine) fault += "--" + other.name;
    else fault += other.name + " (" + (otherPlace == kNowhere ? "by default" : lineOfFile(otherPlace)) + ")";
    return {loser.name, fault};
}

} // namespace

std::optional<Rivalry> findRivalry(const Options& options, const SetWhere& where, const fs::path& file)
{
    std::map<std::pair<std::string, std::string>, const Option*> owners; // by what they rival for, and its value
    for (const Option& option : optionTable()) {
        if (option.value.rivals.empty()) continue;
        const std::string value = option.value.write(options);
        if (value.empty()) continue;
        const auto [owner, isFree] = owners.try_emplace({option.value.rivals, value}, &option);
        if (isFree) continue;
        for (const Option* const either : {&option, owner->second})
            if (isSuggested(*either, options, where)) return Rivalry{either->name, ""};
        const bool isLast = placeOf(option, where) >= placeOf(*owner->second, where);
        const Option &loser = isLast ? option : *owner->second, &other = isLast ? *owner->second : option;
        return describe(loser, other, value, where, file);
    }
    return std::nullopt;
}

void resetOption(const std::string& name, Options& options, SetWhere& where)
{
    const OptionValue& value = findOption(name)->value;
    value.read(options, value.write(Options()));
    where.erase(name);
}
