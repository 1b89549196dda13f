#include "platform/DataFolder.h"

#include "base/Logger.h"

#include <filesystem>
#include <vector>

namespace fs = std::filesystem;

namespace {

// Return where data may lie, seen from the folder of the running program: the installed layout first, then a build's.
std::vector<fs::path> candidates()
{
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (error) return {};
    const fs::path folder = program.parent_path();
    return {folder / "../share/games/quackdash", folder / "../share/quackdash", folder / "data", folder / "../../data"};
}

} // namespace

bool holdsData(const fs::path& folder)
{
    std::error_code error;
    return fs::is_directory(folder / "Shader", error) && fs::is_directory(folder / "Textures", error);
}

fs::path findDataFolder(const fs::path& given)
{
    std::error_code error;
    std::vector<fs::path> folders{given};
    if (given.empty()) {
        folders = candidates();
        folders.insert(folders.begin(), ".");
    }
    for (const fs::path& folder : folders)
        if (holdsData(folder)) return fs::canonical(folder, error);
    return {};
}

bool enterDataFolder(const fs::path& given)
{
    std::error_code error;
    const fs::path folder = findDataFolder(given);
    if (!folder.empty()) fs::current_path(folder, error);
    if (!folder.empty() && !error) return true;
    logLine(0) << "no data folder found: neither the working directory nor a folder beside the program holds Shader "
                  "and Textures"
               << std::endl;
    return false;
}
