#include "platform/Language.h"

#include "base/Logger.h"
#include "base/Translation.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <sstream>

namespace fs = std::filesystem;

namespace {

/// A locale that is everywhere, and changes nothing. The C library's own C.UTF-8, by its path: from version 2.39 of the
/// library on it knows no catalogues by its name, as C never has.
constexpr const char* kLocale = "/C.utf8";

/// Return the first of these variables of the environment that says something, or nothing.
std::string firstOf(std::initializer_list<const char*> variables)
{
    for (const char* variable : variables) {
        const char* const value = std::getenv(variable);
        if (value && *value) return value;
    }
    return "";
}

/// Return what the user would like to read, best first, with colons between: the C library's own rule, by which
/// LANGUAGE counts only beside a locale.
std::string languagesOfUser()
{
    const std::string locale = firstOf({"LC_ALL", "LC_MESSAGES", "LANG"});
    const bool saysNothing = locale.empty() || locale == "C" || locale.starts_with("C.") || locale == "POSIX";
    return saysNothing ? "de" : firstOf({"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"});
}

/// Return the languages to look for catalogues of; none where German, which needs none, comes first.
std::string cataloguesFor(Language language)
{
    if (language != Language::Auto) return language == Language::En ? "en" : "";
    std::istringstream wanted(languagesOfUser());
    std::string list;
    for (std::string name; std::getline(wanted, name, ':'); list += name + ":")
        if (name.starts_with("de")) return list;
    return list + "en";
}

/// Return the folder of the catalogues, seen from that of the running program: the installed layout, then a build's.
fs::path findCatalogues()
{
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error).parent_path();
    for (const fs::path& folder : {program / "../share/locale", program / "locale"})
        if (fs::exists(folder / "en/LC_MESSAGES" / (std::string(kTextDomain) + ".mo"), error)) return folder;
    return {};
}

} // namespace

void chooseLanguage(Language language)
{
    const std::string catalogues = cataloguesFor(language);
    if (catalogues.empty()) return;

    const fs::path folder = findCatalogues();
    if (folder.empty() || !(std::setlocale(LC_MESSAGES, kLocale) || std::setlocale(LC_MESSAGES, "C.UTF-8"))) {
        logLine(1) << "No translations found: the screen is in German" << std::endl;
        return;
    }
    setenv("LANGUAGE", catalogues.c_str(), 1);
    bindtextdomain(kTextDomain, folder.c_str());
    bind_textdomain_codeset(kTextDomain, "UTF-8");
}
