#pragma once

#include "options/OptionValue.h"

#include <string>
#include <vector>

/// Options that help and manual show in one line, as they differ in part of their names only.
struct OptionFamily {
    std::string usage;
    std::string help; ///< with what is expected and the defaults
};

/// One thing that can be set: a row of the table.
struct Option {
    std::string group; ///< the heading that it stands under; empty: it is not shown to people
    std::string name;  ///< --name on the command line, name in the settings file
    char letter;       ///< -x, or 0
    OptionValue value;
    std::string help; ///< one line, without what is expected and the default, which come from the value
    const OptionFamily* family = nullptr; ///< whose line stands for this one and its neighbours

    /// Return how it is given on the command line, as in "-h, --help", "--[no-]mute" or "--volume N"; of a family, how
    /// all of it are.
    std::string usage() const;

    /// Return the help, what is expected and the default.
    std::string description() const;

    std::string shownHelp() const { return family ? family->help : description(); } ///< beside usage()
};

/// Every option, group by group, in the order of help and manual.
const std::vector<Option>& optionTable();

/// Return those whose usage help and manual show: of each family the first.
std::vector<const Option*> shownOptions();

/// Return the option of that name, without dashes; null when there is none.
const Option* findOption(const std::string& name);
