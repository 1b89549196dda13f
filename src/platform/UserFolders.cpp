#include "platform/UserFolders.h"

#include <glib.h>

#include <cstdlib>

namespace fs = std::filesystem;

namespace {

struct Place {
    const char* variable;
    const char* belowHome;
};

constexpr Place kPlaces[] = {
    {"XDG_CONFIG_HOME", ".config"},
    {"XDG_STATE_HOME", ".local/state"},
};

/// Return the path that a variable holds; one that is not absolute does not count.
fs::path pathIn(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value && fs::path(value).is_absolute() ? fs::path(value) : fs::path();
}

} // namespace

fs::path userFile(UserFolder folder, const std::string& name)
{
    const Place& place = kPlaces[static_cast<std::size_t>(folder)];
    fs::path base = pathIn(place.variable);
    if (base.empty()) {
        base = pathIn("HOME");
        if (base.empty()) return {};
        base /= place.belowHome;
    }
    return base / "quackdash" / name;
}

fs::path picturesFolder()
{
    const char* const set = g_get_user_special_dir(G_USER_DIRECTORY_PICTURES);
    return set ? fs::path(set) : fs::path(g_get_home_dir()) / "Pictures";
}
