#include "options/ReadOptions.h"

#include "options/OptionParser.h"
#include "platform/UserFolders.h"

namespace fs = std::filesystem;

namespace {

/// Return why a file that was asked for cannot be the settings file, or nothing.
std::string findFault(const ProgramOptions& program)
{
    std::error_code error;
    if (program.config.empty() || fs::is_regular_file(program.config, error)) return "";
    if (program.request == Request::WriteSettings && !fs::exists(program.config, error)) return ""; // to be made
    return "--config: expected a file that is there, not \"" + program.config + '"';
}

/// Return what does not go together, or nothing.
std::string findContradiction(const Options& options)
{
    constexpr int kLeast = 2; // participants of a match
    const ReplayOptions& replay = options.replay;
    const bool replays = !replay.replay.empty();
    if (replays && !replay.record.empty() && replay.record != "auto") return "--replay: cannot be recorded once more";
    if (!replay.pictures.empty() && (!replays || replay.headless)) return "--pictures: of a replay in the window only";
    if (replay.headless && !replays && options.start.computerPlayers < kLeast)
        return "--headless: expected --replay, or two --computer-players";
    return "";
}

} // namespace

ReadOptions readOptions(const std::vector<std::string>& arguments)
{
    ReadOptions read;
    Options asked; // by the command line alone, which may name the file
    SetWhere ignored, where;
    read.fault = parseArguments(arguments, asked, ignored);
    if (read.fault.empty()) read.fault = findFault(asked.program);
    if (!read.fault.empty()) return read;

    read.settingsFile = asked.program.config.empty() ? userFile(UserFolder::Settings, "quackdash.conf")
                                                     : fs::path(asked.program.config);
    read.complaints = parseSettings(read.settingsFile, read.options, where);
    read.fault = parseArguments(arguments, read.options, where);
    while (read.fault.empty()) {
        const auto rivalry = findRivalry(read.options, where, read.settingsFile);
        if (!rivalry) break;
        const auto place = where.find(rivalry->loser);
        if (place != where.end() && place->second == kOnCommandLine) {
            read.fault = rivalry->fault;
        } else {
            if (!rivalry->fault.empty()) read.complaints.push_back(rivalry->fault);
            resetOption(rivalry->loser, read.options, where);
        }
    }
    if (read.fault.empty()) read.fault = findContradiction(read.options);
    return read;
}
