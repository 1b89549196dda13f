#include "options/OptionLists.h"

#include "options/OptionTable.h"

#include <map>

namespace {

/// Return a text as troff prints it: a dash as people type it, and nothing taken for a request.
std::string forTroff(const std::string& text)
{
    std::string escaped;
    for (const char c : text) {
        if (c == '-') escaped += "\\-";
        else if (c == '\\') escaped += "\\e";
        else escaped += c;
    }
    return escaped;
}

std::vector<std::string> namesOf(const Option& option)
{
    std::vector<std::string> names{"--" + option.name};
    if (option.value.hasOpposite) names.push_back("--no-" + option.name);
    if (option.letter) names.push_back(std::string("-") + option.letter);
    return names;
}

} // namespace

std::string manualText()
{
    std::string page, group;
    for (const Option* option : shownOptions()) {
        if (option->group != group) page += ".SS " + option->group + "\n";
        group = option->group;
        page += ".TP\n.B " + forTroff(option->usage()) + "\n" + forTroff(option->shownHelp()) + ".\n";
    }
    return page;
}

std::string completionText()
{
    std::vector<std::string> all;
    std::map<std::string, std::vector<std::string>> namesByList; // of those that something follows
    for (const Option& option : optionTable()) {
        if (option.group.empty()) continue;
        const std::vector<std::string> names = namesOf(option);
        all.insert(all.end(), names.begin(), names.end());
        if (option.value.placeholder.empty()) continue;
        std::vector<std::string>& alike = namesByList[option.value.completion];
        alike.insert(alike.end(), names.begin(), names.end());
    }
    std::string cases;
    for (const auto& [list, names] : namesByList) {
        cases += "        " + joined(names, " | ") + ") ";
        cases += list.empty() ? ";;\n" : "mapfile -t COMPREPLY < <(compgen " + list + " -- \"$word\") ;;\n";
    }
    return "# Completion of quackdash's options for bash, made from the program's own table.\n"
           "_quackdash()\n"
           "{\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]}\n"
           "    if [[ $word == = ]]; then\n"
           "        word=\n"
           "    elif [[ $option == = ]]; then\n"
           "        option=${COMP_WORDS[COMP_CWORD - 2]}\n"
           "    fi\n"
           "    COMPREPLY=()\n"
           "    case $option in\n" +
        cases + "        *) mapfile -t COMPREPLY < <(compgen -W '" + joined(all, " ") +
        "' -- \"$word\") ;;\n"
        "    esac\n"
        "}\n"
        "complete -o filenames -F _quackdash quackdash\n";
}
