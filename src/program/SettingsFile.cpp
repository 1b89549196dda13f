#include "program/SettingsFile.h"

#include "options/OptionParser.h"

#include <fstream>
#include <iostream>

namespace fs = std::filesystem;

bool writeSettingsFile(const fs::path& file, const Options& options)
{
    if (file.empty()) {
        std::cerr << "quackdash: no place for settings: neither XDG_CONFIG_HOME nor HOME is set\n";
        return false;
    }
    std::error_code error;
    if (file.has_parent_path()) fs::create_directories(file.parent_path(), error);
    std::ofstream out(file);
    out << settingsText(options) << std::flush;
    if (!out) {
        std::cerr << "quackdash: cannot write " << file.string() << '\n';
        return false;
    }
    std::cout << "Settings written to " << file.string() << '\n';
    return true;
}
